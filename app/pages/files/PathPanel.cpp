#include "app/pages/files/PathPanel.h"

#include "app/pages/AnswerField.h"
#include "app/pages/files/FileAttributes.h"
#include "app/pages/files/PathAnswers.h"

#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

PathPanel::PathPanel(QWidget* parent) : QGroupBox(tr("One path"), parent)
{
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
    connect(m_path, &QLineEdit::textChanged, this, &PathPanel::ask);
    connect(m_from, &QLineEdit::textChanged, this, &PathPanel::ask);
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

void PathPanel::ask()
{
    m_temporary->setAnswer(PathAnswers::temporaryFolder());
    const QString path = m_path->text();
    if (path.isEmpty()) {
        for (AnswerField* answer : {m_exists, m_attributes, m_relative, m_extension, m_url})
            answer->setAnswer({});
        return;
    }
    const auto existence = PathAnswers::existence(path);
    m_exists->setAnswer(existence.exists ? tr("Yes: %1").arg(existence.realPath) : tr("No"));
    const QString attributes = attributesText(PathAnswers::attributes(path));
    m_attributes->setAnswer(
        existence.exists ? attributes : tr("%1 (as for all that is missing)").arg(attributes));
    m_relative->setAnswer(PathAnswers::relativePath(m_from->text(), path));
    const QString extension = PathAnswers::extension(path);
    m_extension->setAnswer(extension.isEmpty() ? tr("None") : extension);
    m_url->setAnswer(PathAnswers::isUrl(path) ? tr("Yes") : tr("No"));
}
