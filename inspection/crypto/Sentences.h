#pragma once

#include <QStringList>

/// The sentences that are not empty, with a blank between two of them.
QString joinSentences(QStringList sentences);
