#pragma once

#include "app/Logger.h"

#include <QObject>
#include <QString>

#include <memory>
#include <sys/stat.h>

/// The log of the running application: one file below the user's state folder, to which every run
/// appends. Created on first use, for the user alone, and again where it has been removed or moved
/// away; closed at process exit.
///
/// Pass phrases, keys and clear texts never go into it.
class ApplicationLog : public QObject
{
    Q_OBJECT

public:
    static ApplicationLog& instance();

    /// $XDG_STATE_HOME (by default ~/.local/state), the application's name, quayside.log.
    static QString path();

    /// False when the lines get lost, since there is no such file or nothing may be added to it.
    static bool isWritable();

    /// Writes one line: line ends within the text become U+21B5.
    void write(Logger::log_level level, const QString& text);

signals:
    /// A line has been written and flushed.
    void written();

private:
    ApplicationLog();

    void open();
    bool isInPlace() const;

    std::unique_ptr<Logger> m_logger; ///< none where a file of that name would be waited for
    struct stat m_file = {};          ///< the logger's, as it was found
};

/// Writes one line of level `info` to the application's log.
void logInfo(const QString& text);
