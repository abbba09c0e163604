#pragma once

#include <QSettings>

#include <memory>

/// Puts a file of the user's choice in the place of the host library's store, for as long as it
/// lives. The register manager takes the store when it is asked for first: make this before that.
class StoreReplacement
{
public:
    /// The file is read as the host library's store is, or, where there is none yet, as an INI file
    /// in the encoding that loses nothing. One that is not there is an empty store.
    explicit StoreReplacement(const QString& file);
    /// Saves what has been changed, as every store does.
    ~StoreReplacement();

    StoreReplacement(const StoreReplacement&) = delete;
    StoreReplacement& operator=(const StoreReplacement&) = delete;

private:
    std::unique_ptr<QSettings> m_store;
    QSettings* m_replaced;
};
