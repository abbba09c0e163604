#include "ctl/Message.h"

#include <QString>

#include <cstdio>

void showMessage(const QString& text)
{
    const QByteArray line = "quaysidectl: " + text.toLocal8Bit() + '\n';
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}
