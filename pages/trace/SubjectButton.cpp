#include "pages/trace/SubjectButton.h"

#include "window/Page.h"
#include "window/ShownText.h"

#include <QAction>
#include <QTableView>

#include <utility>

namespace {

using Kind = trace::CallSubject::Kind;

QString pageFor(Kind kind)
{
    switch (kind) {
    case Kind::Key: return QStringLiteral("registry");
    case Kind::Profile: return QStringLiteral("profiles");
    case Kind::Files: break;
    }
    return QStringLiteral("files");
}

QString describe(const trace::CallSubject& subject)
{
    switch (subject.kind) {
    case Kind::Key: return SubjectButton::tr("Show the key %1").arg(subject.place);
    case Kind::Profile: return SubjectButton::tr("Show the profile %1").arg(subject.place);
    case Kind::Files: break;
    }
    return SubjectButton::tr("Show the files %1").arg(subject.place);
}

} // namespace

SubjectButton::SubjectButton(QTableView& table, SubjectOf subjectOf, QWidget* parent)
    : QPushButton(tr("Sho&w"), parent),
      m_table(table),
      m_subjectOf(std::move(subjectOf)),
      m_action(new QAction(tr("Show on its page"), &table))
{
    glowing(this);
    setObjectName(QStringLiteral("show"));
    table.addAction(m_action);
    connect(this, &QPushButton::clicked, this, &SubjectButton::ask);
    connect(m_action, &QAction::triggered, this, &SubjectButton::ask);
    connect(&table, &QTableView::activated, this, &SubjectButton::ask);
    connect(table.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &SubjectButton::refreshState);
    connect(table.model(), &QAbstractItemModel::modelReset, this, &SubjectButton::refreshState);
    refreshState();
}

void SubjectButton::refreshState()
{
    const QModelIndex current = m_table.currentIndex();
    m_subject = current.isValid() ? m_subjectOf(current.row()) : std::nullopt;
    setEnabled(m_subject.has_value());
    m_action->setEnabled(m_subject.has_value());
    const QString description =
        m_subject ? describe(*m_subject)
                  : tr("Shows the key, the profile or the files of a call on their page");
    setToolTip(plainToolTip(description));
    setAccessibleDescription(description);
}

void SubjectButton::ask()
{
    if (m_subject)
        emit placeRequested({pageFor(m_subject->kind), m_subject->place, m_subject->names});
}
