#pragma once

#include <QCoreApplication>

#include <string>

/// Bytes as a field shows them.
struct DecodedText
{
    Q_DECLARE_TR_FUNCTIONS(DecodedText)

public:
    /// Bytes that are not UTF-8 or hold a zero are shown in hexadecimal.
    static DecodedText of(const std::string& bytes);

    /// Says that they are shown in hexadecimal; empty for a text.
    QString note() const;

    QString text;
    bool isText;
};
