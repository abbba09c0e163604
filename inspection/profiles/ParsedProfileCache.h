#pragma once

#include <QSettings>
#include <QString>

/// Keeps a parsed profile in memory for the wide calls.
///
/// Each wide call opens the file anew, and QSettings parses it anew unless another of its objects
/// on the same path is alive. It still looks at the file's size and time with each opening, so that
/// what others write is seen. Nothing is read or written through this object: what is shown is what
/// the calls answer.
class ParsedProfileCache
{
public:
    explicit ParsedProfileCache(const QString& file);

    /// Parses all sections. Otherwise QSettings parses a section when something in it is first
    /// asked for.
    void parse() const;

private:
    QSettings m_settings;
};
