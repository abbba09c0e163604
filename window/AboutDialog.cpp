#include "window/AboutDialog.h"

#include "app/HostInformation.h"
#include "app/Version.h"
#include "inspection/registry/RawStore.h"
#include "window/AnswerField.h"
#include "window/GlyphIcon.h"
#include "window/Page.h"
#include "window/ShownText.h"
#include "window/WindowGlyph.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>

namespace {

QString qtVersions()
{
    const QString running = QString::fromLatin1(qVersion());
    const QString built = QStringLiteral(QT_VERSION_STR);
    return running == built ? running : AboutDialog::tr("%1, built with %2").arg(running, built);
}

QLabel* picture(const QWidget& widget)
{
    auto* label = new QLabel;
    const int side = widget.fontMetrics().height() * 4;
    label->setPixmap(glyphIcon(&drawWindowGlyph).pixmap(side, side));
    label->setAlignment(Qt::AlignTop);
    return label;
}

} // namespace

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("About Quayside"));
    auto* form = new QFormLayout;
    auto* purpose = new QLabel(tr("Shows what host libraries get from the Windows-style services "
                                  "that run in this program."));
    purpose->setWordWrap(true);
    form->addRow(purpose);
    addRow(*form, tr("Quayside:"), QString::fromLatin1(programVersion()), "version");
    addRow(*form, tr("Qt:"), qtVersions(), "qt");
    addRow(*form, tr("Host library:"), HostInformation::libraryPath(), "library");
    addRow(*form, tr("Settings store:"), RawStore::fileName(), "store");
    auto* buttons = new QDialogButtonBox;
    auto* copyAll = buttons->addButton(tr("&Copy"), QDialogButtonBox::ActionRole);
    connect(glowing(copyAll), &QPushButton::clicked, this, &AboutDialog::copy);
    glowing(buttons->addButton(QDialogButtonBox::Close))->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(picture(*this));
    layout->addLayout(form, 1);
    resize(fontMetrics().averageCharWidth() * 90, sizeHint().height());
}

void AboutDialog::addRow(QFormLayout& form, const QString& caption, const QString& text,
                         const char* objectName)
{
    const QString shown = text.isEmpty() ? tr("unknown") : text;
    auto* field = new AnswerField(withoutMnemonic(caption), QLatin1String(objectName));
    field->setAnswer(shown);
    form.addRow(caption, field);
    m_lines += caption + QLatin1Char(' ') + shown + QLatin1Char('\n');
}

void AboutDialog::copy() const
{
    QGuiApplication::clipboard()->setText(m_lines);
}
