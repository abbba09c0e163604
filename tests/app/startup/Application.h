#pragma once

#include "tests/support/ChildProcess.h"

#include <QMap>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

/// One run of the real executable in a working directory of its own, by default with the test host
/// library in the place of the stand-in.
class Application
{
public:
    Application();

    /// The folder from which the application is started; it lives as long as this object.
    QString folder() const { return m_folder.path(); }
    void bringQtCatalogue() const;
    void useStandIn();
    void setEnvironment(const QString& name, const QString& value);

    /// Lets the executable write on standard error.
    void expectMessages();

    bool start(const QStringList& arguments = QStringList());
    /// Waits for the end; false when it crashed or did not end in time. Whatever it wrote on
    /// standard error, Qt's warnings above all, fails the test unless it is expected.
    bool finish();
    /// Both.
    bool run(const QStringList& arguments = QStringList());

    int status() const { return m_status; }
    QString output() const { return m_output; }
    /// The unexpected lines of standard error.
    QStringList errors() const { return m_errors; }
    /// The lines that begin with "key=", without that.
    QStringList values(const QString& key) const;
    QString value(const QString& key) const { return values(key).join(QLatin1Char('|')); }

    static QString executable();

private:
    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
    ChildProcess m_process;
    QString m_output;
    QStringList m_errors;
    int m_status = -1;
    bool m_areMessagesExpected = false;
};
