#pragma once

#include "platform/PlatformDirectoryManagerImp.h"
#include "tests/platform/files/FileTree.h"
#include "tests/support/CanaryRecord.h"

#include <QStringList>

#include <gtest/gtest.h>

/// What tests of searches share: a tree of files, and searches run to their end.
class DirectorySearch : public testing::Test
{
protected:
    /// The names that a search for `pattern`, from its start to its end, reports.
    QStringList search(const std::wstring& pattern)
    {
        QStringList names;
        void* handle = manager.findFirstFile(pattern.c_str(), data.get());
        if (handle == INVALID_HANDLE_VALUE)
            return names;
        do {
            names << QString::fromWCharArray(data->cFileName);
        } while (manager.findNextFile(handle, data.get()) == 1);
        EXPECT_EQ(1, manager.findClose(handle));
        data.expectIntact();
        return names;
    }

    /// The same of a pattern below the tree.
    QStringList searchTree(const QByteArray& pattern) { return search(tree.wide(pattern)); }

    /// Finds one entry of the tree and leaves its data.
    ::testing::AssertionResult find(const QByteArray& pattern)
    {
        void* handle = manager.findFirstFile(tree.wide(pattern).c_str(), data.get());
        if (handle == INVALID_HANDLE_VALUE)
            return testing::AssertionFailure() << "nothing found";
        manager.findClose(handle);
        data.expectIntact();
        return testing::AssertionSuccess();
    }

    FileTree tree;
    PlatformDirectoryManagerImp manager;
    CanaryRecord<_WIN32_FIND_DATAW> data;
};
