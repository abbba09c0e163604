#include "tests/support/MessageGuard.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace {

QString* g_expected = nullptr;
int g_expectedCount = 0;

// The offscreen platform says so of every window whose size hints change.
const QLatin1String offscreenLimit("This plugin does not support propagateSizeHints()");

void handle(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    if (g_expected && message.contains(*g_expected)) {
        ++g_expectedCount;
        return;
    }
    if (message == offscreenLimit)
        return;
    std::fprintf(stderr, "%s\n", message.toUtf8().constData());
    if (type == QtWarningMsg || type == QtCriticalMsg)
        ADD_FAILURE() << "unexpected message: " << message.toStdString();
    if (type == QtFatalMsg)
        abort();
}

} // namespace

void installMessageGuard()
{
    qInstallMessageHandler(handle);
}

ExpectMessage::ExpectMessage(const QString& text)
{
    g_expected = new QString(text);
    g_expectedCount = 0;
}

ExpectMessage::~ExpectMessage()
{
    EXPECT_GT(g_expectedCount, 0) << "missing message: " << g_expected->toStdString();
    delete g_expected;
    g_expected = nullptr;
}
