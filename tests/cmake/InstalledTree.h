#pragma once

#include "tests/cmake/ChildOutput.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

/// The tree that installation leaves: it is installed anew for each suite of tests.
class InstalledTree : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        folder = std::make_unique<QTemporaryDir>();
        outputOf("cmake", {"--install", QUAYSIDE_BUILD_FOLDER, "--prefix", prefix()});
    }
    static void TearDownTestSuite() { folder.reset(); }

    static QString prefix() { return folder->filePath("prefix"); }

    /// Builds a target, or all, of a project that knows the tree alone; where the binaries go.
    static QString built(const QString& sources, const QString& name,
                         const QStringList& buildOptions = {}, const QStringList& options = {})
    {
        const QString binaries = folder->filePath(name);
        outputOf("cmake", QStringList{"-S", sources, "-B", binaries, "-G", "Ninja",
                                      "-DCMAKE_PREFIX_PATH=" + prefix()} +
                              options);
        outputOf("cmake", QStringList{"--build", binaries} + buildOptions);
        return binaries;
    }

    static inline std::unique_ptr<QTemporaryDir> folder;
};
