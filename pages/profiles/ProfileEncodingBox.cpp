#include "pages/profiles/ProfileEncodingBox.h"

#include <QAbstractItemView>
#include <QTextCodec>

ProfileEncodingBox::ProfileEncodingBox(QWidget* parent) : QComboBox(parent)
{
    setObjectName(QStringLiteral("encoding"));
    setAccessibleName(tr("Encoding of lines that are not UTF-8"));
    view()->setAccessibleName(accessibleName());
    setToolTip(tr("Lines that are not UTF-8 are shown in this encoding. The calls of both families "
                  "read them as before."));
    const QString order =
        tr("windows-1252 GB18030 Big5 Shift_JIS EUC-KR windows-1251",
           "Encodings, the one that is most likely where the language is spoken first");
    const QStringList names = order.split(QLatin1Char(' '));
    for (const QString& name : names) {
        if (QTextCodec::codecForName(name.toLatin1()))
            addItem(name == QLatin1String("GB18030") ? QStringLiteral("GBK (GB18030)") : name,
                    name.toLatin1());
    }
    addItem(tr("UTF-8, as the calls read"));
}

const QTextCodec* ProfileEncodingBox::codec() const
{
    const QByteArray name = currentData().toByteArray();
    return name.isEmpty() ? nullptr : QTextCodec::codecForName(name);
}
