#pragma once

#include "host/HostLibraries.h"

#include <QString>
#include <QStringList>

/// A host library that records what start-up calls, for programs that do not link the stand-in.
struct RecordingHost
{
    QStringList calls;
    IPlatformServices* services = nullptr;
    int initResult = 0;
    int languageId = 0;
    QString requestedLanguage;
    int announcedStrings = 0;
    const void* lastAnnounced = nullptr;
};

extern RecordingHost g_recordingHost;
