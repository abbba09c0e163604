#include "pages/crypto/DigestSource.h"

#include "inspection/crypto/DigestJob.h"
#include "window/Page.h"
#include "window/ShownText.h"

#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>

DigestSource::DigestSource(QWidget* parent)
    : QWidget(parent),
      m_fromText(new QRadioButton(tr("Of a te&xt"))),
      m_fromFile(new QRadioButton(tr("Of &a file"))),
      m_stack(new QStackedWidget)
{
    auto* choice = new QHBoxLayout;
    choice->addWidget(m_fromText);
    choice->addWidget(m_fromFile);
    choice->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(choice);
    layout->addWidget(m_stack, 1);
    m_stack->addWidget(makeText());
    m_stack->addWidget(makeFile());
    connect(m_fromFile, &QRadioButton::toggled, this, [this](bool file) {
        m_stack->setCurrentIndex(file ? 1 : 0);
        setFocusProxy(file ? static_cast<QWidget*>(m_path) : m_text);
    });
    m_fromText->setChecked(true);
    setAcceptDrops(true);
    setFocusProxy(m_text);
}

QWidget* DigestSource::makeText()
{
    m_text = new QPlainTextEdit;
    m_text->setAccessibleName(tr("Text"));
    m_text->setPlaceholderText(tr("Type or paste a text, or drop a file here."));
    m_text->setTabChangesFocus(true);
    // Looking for words in one long line would take seconds.
    m_text->setWordWrapMode(QTextOption::WrapAnywhere);
    m_text->setAcceptDrops(false);
    m_text->setMinimumHeight(fontMetrics().lineSpacing() * 3);
    return m_text;
}

QWidget* DigestSource::makeFile()
{
    auto* place = new QWidget;
    m_path = new QLineEdit;
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
    const QString path = QFileDialog::getOpenFileName(this, tr("Choose a file"), m_path->text());
    if (!path.isEmpty())
        setFile(path);
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

QString DigestSource::description() const
{
    return m_fromFile->isChecked() ? QFileInfo(m_path->text()).fileName() : tr("the text");
}

std::unique_ptr<DigestJob> DigestSource::makeJob(const QByteArray& second, QString* problem)
{
    if (m_fromFile->isChecked())
        return makeFileJob(second, problem);
    return std::make_unique<DigestJob>(textOf(*m_text).toUtf8(), second);
}

// Only regular files: others may block, or never end.
std::unique_ptr<DigestJob> DigestSource::makeFileJob(const QByteArray& second, QString* problem)
{
    const QString path = m_path->text();
    auto file = std::make_unique<QFile>(path);
    if (path.isEmpty())
        *problem = tr("Enter the path of a file first.");
    else if (!file->exists())
        *problem = tr("There is no file %1.").arg(path);
    else if (!QFileInfo(path).isFile())
        *problem = tr("%1 is not a regular file.").arg(path);
    else if (!file->open(QFile::ReadOnly))
        *problem = tr("%1 cannot be read: %2").arg(path, file->errorString());
    if (!problem->isEmpty()) {
        m_path->setFocus();
        return nullptr;
    }
    return std::make_unique<DigestJob>(std::move(file), second);
}
