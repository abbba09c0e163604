#pragma once

#include "inspection/registry/StoreWatch.h"
#include "window/Page.h"

class AddressBar;
class FindPane;
class KeyTree;
class ListedValue;
class RegistryActions;
class StoreFollower;
class StoreOpeningJob;
class ValueTable;

/// The registry as a host library finds it: the keys, the values of one of them, and every change
/// that the service offers.
class RegistryPage : public Page
{
    Q_OBJECT

public:
    explicit RegistryPage(QWidget* parent = nullptr);
    ~RegistryPage() override;

    void refresh() override;
    void find() override;
    void entered() override;
    void lookForChanges() override;
    /// Goes to a key, and to the value that is named.
    void showPlace(const PlaceRequest& request) override;
    /// Shows what importing the file would do.
    void openFile(const QString& path) override;

    /// Selects a key, or the nearest one above it, and a value of it unless `name` is empty.
    void goTo(const QString& path, const QString& name = QString());

private:
    QWidget* makeViews();
    void connectParts();
    void addSearchKeys();
    void readKeys();
    void showKey();
    void showCounts();
    void follow();
    void showRemark(const ListedValue& value);
    void openKey(const QString& path);
    void showChange(const QString& path, const QString& name);
    void openStore();
    void refreshEntered();
    void reportStore();
    void goToWanted();

    StoreWatch m_watch;
    KeyTree* m_tree;
    ValueTable* m_table;
    AddressBar* m_address;
    RegistryActions* m_actions;
    FindPane* m_find;
    StoreFollower* m_follower;
    QString m_counts; ///< what was told of the key when it was shown
    bool m_isFollowing = false;
    std::unique_ptr<StoreOpeningJob> m_opening; ///< null until the store is opened
    JobRunner m_openingRunner;
    bool m_isListed = false; ///< the store has been listed
    PlaceRequest m_wanted;   ///< before that; its place is empty where there is none
};
