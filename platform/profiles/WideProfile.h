#pragma once

#include <QSettings>
#include <QString>

#include <optional>
#include <utility>
#include <vector>

/// One file as the wide calls see it, for the length of one call.
class WideProfile
{
public:
    /// QSettings reads a file at once. One of 2 GiB it would take for empty, and with the next
    /// write all that lies in it would be lost.
    static constexpr qint64 largestFile = 0x7fffffff - 4096;

    /// Does not touch what is no file to be read: pipes, sockets and devices, for which QSettings
    /// would wait or which it would replace, and what the memory does not hold.
    explicit WideProfile(const wchar_t* file);

    /// False for those: then there are no settings.
    bool isReadable() const { return m_settings.has_value(); }
    /// True for a device, which is never replaced by a file.
    bool isDevice() const { return m_isDevice; }

    QSettings* operator->() { return &*m_settings; }
    QSettings& operator*() { return *m_settings; }

    /// Sets entries, each a name and a value, and saves; throws bad_alloc, with the file as it was,
    /// where the memory is too small for that.
    void write(const std::vector<std::pair<QString, QString>>& entries);

private:
    std::optional<QSettings> m_settings;
    bool m_isLarge = false;
    bool m_isDevice = false;
};
