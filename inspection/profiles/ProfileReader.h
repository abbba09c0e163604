#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <string>

/// What the profile service answers about one file.
class ProfileReader
{
public:
    explicit ProfileReader(const QString& file);

    /// The narrow family's answer; it does not tell a missing value from an empty one.
    QString narrow(const QString& section, const QString& key) const;
    /// The wide family's answer; nothing where it finds no value.
    std::optional<QString> wide(const QString& section, const QString& key) const;

private:
    QString wideValue(const QString& section, const QString& key, const wchar_t* fallback) const;

    QByteArray m_narrowFile;
    std::wstring m_wideFile;
};
