#include "platform/profiles/NarrowText.h"

#include <QTextCodec>

QString NarrowText::decoded(const QByteArray& chunk)
{
    if (!m_decoder) {
        QTextCodec* utf8 = QTextCodec::codecForName("utf-8");
        m_decoder.reset(QTextCodec::codecForUtfText(chunk, utf8)->makeDecoder());
    }
    return m_decoder->toUnicode(chunk).remove(QLatin1Char('\r'));
}
