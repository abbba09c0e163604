#pragma once

#include <QProcess>

#include <gtest/gtest.h>

/// What the program prints, on both streams. The test fails where the program does.
inline QString outputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(300000));
    const QString output = QString::fromUtf8(process.readAll());
    EXPECT_EQ(0, process.exitCode()) << output.toStdString();
    return output;
}
