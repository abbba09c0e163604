#pragma once

#include <QCoreApplication>

#include <string>

/// Words for what `Base64Encoder::Decode` ignores without saying so.
class Base64Note
{
    Q_DECLARE_TR_FUNCTIONS(Base64Note)

public:
    /// Empty when all of the text counts.
    static QString of(const std::string& text);

    /// For a text of which nothing is decoded.
    static QString nothingDecoded();
};
