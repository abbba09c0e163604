#pragma once

#include <QVariant>

#include <gtest/gtest.h>

/// A test on the stand-in's store, empty at first.
class RegistryTest : public testing::Test
{
protected:
    RegistryTest();
    ~RegistryTest() override;

    /// Writes an entry past the registry service, as it would stand in the file.
    static void store(const QString& path, const QVariant& entry);
    /// The text of an entry, or "(none)".
    static QString stored(const QString& path);
    static bool holds(const QString& path);
};
