#pragma once

#include "trace/replay/Player.h"

#include <QCoreApplication>

#include <functional>
#include <memory>

namespace replay {

/// A replay in a process of its own: a service that crashes, or changes what belongs to the whole
/// process, such as fonts, searches and the cursor, does not touch the next one.
///
/// The process is a copy of this one (fork), so that it takes no time to start and the emulator of
/// another architecture has it too. So there must be no other threads that it would need.
class ReplayProcess
{
    Q_DECLARE_TR_FUNCTIONS(ReplayProcess)

public:
    /// Makes the services in the new process, when the store is in its place.
    using MakeServices = std::function<std::unique_ptr<IPlatformServices>()>;
    /// Called every now and then while this one waits; may throw, which ends the other one.
    using Pause = std::function<void()>;

    /// All outlive this.
    ReplayProcess(trace::TraceFile& file, ReplayFolder& folder);

    void setServices(const MakeServices& makeServices) { m_makeServices = makeServices; }
    void setPause(const Pause& pause) { m_pause = pause; }
    void setSelection(const Player::Selection& isChosen) { m_isChosen = isChosen; }
    void watch(qint64 number) { m_watched = number; }

    /// Runs it to its end. False where no process can be made, which `error` tells in words.
    bool run();
    const ReplayReport& report() const { return m_report; }
    const QString& error() const { return m_error; }

private:
    struct Exchange;

    [[noreturn]] void replay(Exchange& exchange);
    QByteArray receive(int descriptor);
    bool fail();

    trace::TraceFile& m_file;
    ReplayFolder& m_folder;
    MakeServices m_makeServices;
    Pause m_pause;
    Player::Selection m_isChosen;
    qint64 m_watched = 0;
    ReplayReport m_report;
    QString m_error;
};

} // namespace replay
