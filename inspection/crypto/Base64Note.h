#pragma once

#include "crypto/base64/Base64Extent.h"

#include <QCoreApplication>

#include <string>

/// Words for what `Base64Encoder::Decode` ignores without saying so.
class Base64Note
{
    Q_DECLARE_TR_FUNCTIONS(Base64Note)

public:
    /// Empty when all of the text counts.
    static QString of(const std::string& text);
    /// The same for a text of which so much counts.
    static QString of(const base64::Extent& extent);

    /// For a text of which nothing is decoded.
    static QString nothingDecoded();
};
