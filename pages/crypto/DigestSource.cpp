#include "pages/crypto/DigestSource.h"

#include "inspection/crypto/DigestJob.h"
#include "inspection/files/TypedPath.h"
#include "pages/crypto/TextPane.h"
#include "window/FileDialog.h"
#include "window/FileOpener.h"
#include "window/Page.h"
#include "window/ShownText.h"

#include <QDragEnterEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>

DigestSource::DigestSource(PageContext& context, QWidget* parent)
    : QWidget(parent),
      m_context(context),
      m_fromFile(new QRadioButton(tr("Of a fil&e"))),
      m_text(makeTextEdit(tr("Text"), tr("Type or paste a text, or drop a file here."))),
      m_path(new QLineEdit)
{
    auto* fromText = new QRadioButton(tr("Of a te&xt"));
    auto* choice = new QHBoxLayout;
    choice->addWidget(fromText);
    choice->addWidget(m_fromFile);
    choice->addStretch();
    auto* stack = new QStackedWidget;
    m_text->setAcceptDrops(false);
    m_text->setMinimumHeight(fontMetrics().lineSpacing() * 3);
    stack->addWidget(m_text);
    stack->addWidget(makeFile());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(choice);
    layout->addWidget(stack, 1);
    connect(m_fromFile, &QRadioButton::toggled, this, [this, stack](bool file) {
        stack->setCurrentIndex(file ? 1 : 0);
        setFocusProxy(file ? static_cast<QWidget*>(m_path) : m_text);
    });
    fromText->setChecked(true);
    setAcceptDrops(true);
    setProperty(FileOpener::takesAnyFile, true);
    setFocusProxy(m_text);
}

QWidget* DigestSource::makeFile()
{
    auto* place = new QWidget;
    m_path->setAccessibleName(tr("Path of the file"));
    m_path->setPlaceholderText(tr("Path of a file; drop one here or browse for it."));
    connect(m_path, &QLineEdit::returnPressed, this, &DigestSource::accepted);
    auto* browseButton = glowing(new QPushButton(tr("Bro&wse...")));
    connect(browseButton, &QPushButton::clicked, this, &DigestSource::browse);
    auto* layout = new QHBoxLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_path, 1, Qt::AlignTop);
    layout->addWidget(browseButton, 0, Qt::AlignTop);
    return place;
}

void DigestSource::browse()
{
    auto* dialog = new FileDialog(this, tr("Choose a file"), "digest");
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->startAt(path());
    connect(dialog, &QFileDialog::fileSelected, this, &DigestSource::setFile);
    dialog->open();
}

void DigestSource::setFile(const QString& path)
{
    m_fromFile->setChecked(true);
    m_path->setText(path);
    m_path->setFocus();
}

void DigestSource::dragEnterEvent(QDragEnterEvent* event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() == 1 && urls.first().isLocalFile())
        event->acceptProposedAction();
}

void DigestSource::dropEvent(QDropEvent* event)
{
    setFile(event->mimeData()->urls().constFirst().toLocalFile());
    event->acceptProposedAction();
}

QString DigestSource::path() const
{
    return typedPath(m_path->text());
}

QString DigestSource::description() const
{
    return m_fromFile->isChecked() ? QFileInfo(path()).fileName() : tr("the text");
}

std::unique_ptr<DigestJob> DigestSource::makeJob(const QByteArray& second)
{
    if (!m_fromFile->isChecked())
        return std::make_unique<DigestJob>(textOf(*m_text).toUtf8(), second);
    QString problem;
    std::unique_ptr<DigestJob> job = DigestJob::ofFile(path(), second, &problem);
    if (!job) {
        m_path->setFocus();
        m_context.report(PageContext::Report::Warning, problem);
    }
    return job;
}
