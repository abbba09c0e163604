#pragma once

#include <QProcess>

#include <gtest/gtest.h>

struct ChildResult
{
    int status;
    QString output; ///< both streams
};

/// How the program ends, and what it prints.
inline ChildResult resultOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(300000));
    return {process.exitCode(), QString::fromUtf8(process.readAll())};
}

/// What the program prints, on both streams. The test fails where the program does.
inline QString outputOf(const QString& program, const QStringList& arguments)
{
    const ChildResult result = resultOf(program, arguments);
    EXPECT_EQ(0, result.status) << result.output.toStdString();
    return result.output;
}
