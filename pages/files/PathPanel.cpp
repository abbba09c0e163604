#include "pages/files/PathPanel.h"

#include "inspection/files/FileAttributes.h"
#include "inspection/files/TypedPath.h"
#include "inspection/files/WindowsPath.h"
#include "window/AnswerField.h"
#include "window/ShownText.h"

#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

constexpr int pauseMilliseconds = 300; // longer than between two keys of one word

} // namespace

PathPanel::PathPanel(IPlatformDirectoryManager& service, QWidget* parent)
    : QGroupBox(tr("One path"), parent), m_answers(service), m_note(new QLabel)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseMilliseconds);
    connect(&m_pause, &QTimer::timeout, this, &PathPanel::showExistence);
    auto* grid = new QGridLayout(this);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    m_path = addInput(grid, tr("Pat&h:"), tr("A path or an address to ask the service about"));
    m_path->setObjectName(QStringLiteral("path"));
    m_from =
        addInput(grid, tr("Seen fro&m:"), tr("The directory that the relative path starts at"));
    m_from->setObjectName(QStringLiteral("from"));
    m_from->setText(QDir::homePath());
    m_exists = addAnswer(grid, 2, 0, tr("Exists, ignoring case:"), "exists");
    m_attributes = addAnswer(grid, 2, 2, tr("Attributes:"), "attributes");
    m_relative = addAnswer(grid, 3, 0, tr("Relative path:"), "relative");
    m_extension = addAnswer(grid, 3, 2, tr("Extension:"), "extension");
    m_temporary = addAnswer(grid, 4, 0, tr("Temporary folder:"), "temporary");
    m_url = addAnswer(grid, 4, 2, tr("Is a URL:"), "url");
    m_note->setObjectName(QStringLiteral("note"));
    m_note->setTextFormat(Qt::PlainText);
    m_note->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_note->setWordWrap(true);
    grid->addWidget(m_note, 5, 0, 1, 4);
    connect(m_path, &QLineEdit::textChanged, this, &PathPanel::askSoon);
    connect(m_from, &QLineEdit::textChanged, this, &PathPanel::askSoon);
    ask();
}

QLineEdit* PathPanel::addInput(QGridLayout* grid, const QString& label, const QString& hint)
{
    auto* edit = new QLineEdit;
    edit->setPlaceholderText(hint);
    edit->setAccessibleName(hint);
    auto* caption = new QLabel(label);
    caption->setBuddy(edit);
    const int row = grid->rowCount() - (grid->count() == 0 ? 1 : 0);
    grid->addWidget(caption, row, 0);
    grid->addWidget(edit, row, 1, 1, 3);
    return edit;
}

AnswerField* PathPanel::addAnswer(QGridLayout* grid, int row, int column, const QString& label,
                                  const char* objectName)
{
    auto* answer = new AnswerField(label, QLatin1String(objectName));
    grid->addWidget(new QLabel(label), row, column);
    grid->addWidget(answer, row, column + 1);
    return answer;
}

void PathPanel::setPath(const QString& path)
{
    m_path->setText(path);
}

QString PathPanel::path() const
{
    return typedPath(m_path->text());
}

void PathPanel::takeStamps()
{
    m_pathStamp = FileStamp::of(path());
    m_folderStamp = FileStamp::of(QFileInfo(path()).path());
}

// While a path is being typed, the question that is to come is enough.
void PathPanel::lookForChanges()
{
    if (m_pause.isActive() || path().isEmpty())
        return;
    if (m_pathStamp != FileStamp::of(path()) ||
        m_folderStamp != FileStamp::of(QFileInfo(path()).path()))
        ask();
}

void PathPanel::ask()
{
    m_pause.stop();
    showCheapAnswers();
    showExistence();
}

// Looking for a name without regard to case lists its directory, which may be large.
void PathPanel::askSoon()
{
    showCheapAnswers();
    m_exists->setAnswer({});
    m_pause.start();
}

void PathPanel::showCheapAnswers()
{
    m_temporary->setAnswer(m_answers.temporaryFolder());
    showNote();
    const QString path = this->path();
    if (path.isEmpty()) {
        for (AnswerField* answer : {m_attributes, m_relative, m_extension, m_url})
            answer->setAnswer({});
        return;
    }
    m_attributes->setAnswer(attributesText(m_answers.attributes(path)));
    m_relative->setAnswer(m_answers.relativePath(typedPath(m_from->text()), path));
    const QString extension = m_answers.extension(path);
    m_extension->setAnswer(extension.isEmpty() ? tr("None") : extension);
    m_url->setAnswer(m_answers.isUrl(m_path->text()) ? tr("Yes") : tr("No"));
}

// The services know nothing of quotation marks and of "~": the page does, and says so.
void PathPanel::showNote()
{
    const QString path = this->path();
    QStringList notes;
    if (path != m_path->text())
        notes += tr("Asked about %1.").arg(path);
    if (WindowsPath::isIn(path))
        notes += tr("%1 AddBackslash makes %2 of it.")
                     .arg(WindowsPath::note(), m_answers.withSeparator(path));
    const QString text = notes.join(QLatin1Char(' '));
    m_note->setText(withoutLongWords(text));
    m_note->setToolTip(plainToolTip(text));
    m_note->setVisible(!notes.isEmpty());
}

void PathPanel::showExistence()
{
    takeStamps();
    const QString path = this->path();
    if (path.isEmpty()) {
        m_exists->setAnswer({});
        return;
    }
    const auto existence = m_answers.existence(path);
    m_exists->setAnswer(existence.exists ? tr("Yes: %1").arg(existence.realPath) : tr("No"));
    if (!existence.exists)
        m_attributes->setAnswer(
            tr("%1 (path is missing)").arg(attributesText(m_answers.attributes(path))));
}
