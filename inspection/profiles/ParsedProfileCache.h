#pragma once

#include <QSettings>
#include <QString>

/// Keeps a profile in memory, taken apart, for the wide calls.
///
/// Each of them opens the file anew, and QSettings takes it apart anew unless an object on the same
/// path is alive. It still looks at the file's size and time with each opening, so that what others
/// write is seen. Nothing is asked or written here: what is shown is what the calls answer.
class ParsedProfileCache
{
public:
    explicit ParsedProfileCache(const QString& file);

    /// Takes all sections apart. By itself each is when something in it is asked for first.
    void takeApart() const;

private:
    QSettings m_settings;
};
