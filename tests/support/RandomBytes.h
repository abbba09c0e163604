#pragma once

#include <QByteArray>

#include <random>

/// Content that nobody has written: the same 4,096 bytes of any value in every run.
inline QByteArray randomBytes()
{
    constexpr int size = 4096;
    std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same ones in every run
    QByteArray bytes;
    for (int i = 0; i < size; ++i)
        bytes += static_cast<char>(random() % 256);
    return bytes;
}
