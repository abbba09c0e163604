#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// What a host library reads of a value that has just been set, in words; nothing where that is
/// what was written. `written` is what RegSetValueExW has got.
std::optional<QString> otherReading(const QString& path, const QString& name, unsigned int type,
                                    const QByteArray& written);
