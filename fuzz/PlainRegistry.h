#pragma once

#include <QSettings>
#include <QString>

#include <optional>

/// A value as a caller asks for it, and as it gets it: which out-parameters there are, what stands
/// in them before and after.
struct ValueRequest
{
    bool hasType = false;
    bool hasData = false;
    bool hasSize = false;
    unsigned int type = 77;
    unsigned int size = 0;
    QByteArray data;

    friend bool operator==(const ValueRequest& a, const ValueRequest& b)
    {
        return a.type == b.type && a.size == b.size && a.data == b.data;
    }
};

/// The rules of the registry calls, one plain step after the other, on a store of its own. A key is
/// its path; none is a root. Statuses are those of the calls.
class PlainRegistry
{
public:
    using Key = std::optional<QString>;

    struct Information
    {
        unsigned int keys = 0;
        unsigned int longestKey = 0;
        unsigned int values = 0;
        unsigned int longestValue = 0;
        unsigned int dataSize = 0;
    };

    explicit PlainRegistry(QSettings& store) : m_store(store) {}

    unsigned int open(const Key& parent, const QString& name, Key& result);
    unsigned int create(const Key& parent, const QString& name);
    unsigned int setValue(const Key& key, const QString& name, unsigned int type,
                          const QByteArray& data, unsigned int size);
    /// Intended: below a root, a value stands in a group of its own name.
    unsigned int value(const Key& key, const QString& name, ValueRequest& request);
    /// RegQueryValueW: the group is the key's, whatever it is.
    unsigned int valueOfName(const Key& key, const QString& name, ValueRequest& request);
    unsigned int deleteValue(const Key& key, const QString& name);
    unsigned int deleteKey(const Key& key, const QString& name);
    unsigned int keyAt(const Key& key, unsigned int index, QString& name);
    unsigned int valueAt(const Key& key, unsigned int index, QString& name, ValueRequest& request);
    Information information(const Key& key);

private:
    static QString path(const Key& parent, const QString& name);
    static QString valueGroup(const Key& key, const QString& name);
    unsigned int read(const QString& group, const QString& name, ValueRequest& request);
    void deleteAll(const QString& path);

    QSettings& m_store;
};
