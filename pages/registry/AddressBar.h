#pragma once

#include "inspection/JobRunner.h"
#include "inspection/registry/CompletionJob.h"
#include "inspection/registry/NearestKeyJob.h"

#include <QWidget>

#include <memory>

class PageContext;
class PathEdit;
class QCompleter;
class QHBoxLayout;
class QLabel;
class RegistryTreeModel;

/// The line with the path of the key in view, in which another one can be typed. It completes what
/// is typed, keeps it where it leads nowhere, and offers the key that seems to be meant.
class AddressBar : public QWidget
{
    Q_OBJECT

public:
    /// Looks among `keys`, which outlive it, for what is typed.
    AddressBar(PageContext& page, RegistryTreeModel& keys, QWidget* parent = nullptr);

    /// Shows the path of a key of the store as people write it. What is typed stays while the key
    /// is the same.
    void setPath(const QString& path);
    /// Adds a button behind the line.
    void addButton(QWidget* button);

signals:
    /// The typed key is to be shown.
    void entered(const QString& path);
    /// There is no such key: the nearest one above it is to be shown.
    void missed(const QString& path);

private:
    QWidget* makeLine();
    QWidget* makeOffer();
    void complete(const QString& typed);
    void showCompletions(const QStringList& completions);
    void stopLooking();
    void submit();
    void enter(const QString& path);
    void open();
    bool isThere(const QString& path) const;
    void openNearest(const QStringList& paths);
    void offerNearest();

    PageContext& m_page;
    RegistryTreeModel& m_keys;
    QHBoxLayout* m_layout;
    PathEdit* m_line; ///< modified: what has been typed stands there
    QString m_path;   ///< of the key in view
    QCompleter* m_completer;
    QLabel* m_offerText;
    QWidget* m_offer; ///< in view while there is a key to offer
    QString m_offered;
    JobRunner m_completing{this};
    std::unique_ptr<CompletionJob> m_completion; ///< the one that runs
    JobRunner m_seeking{this};
    std::unique_ptr<NearestKeyJob> m_nearest; ///< the one that runs
};
