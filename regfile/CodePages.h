#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

/// A code page in which the text of a registry file of version 4 may be.
struct CodePage
{
    QByteArray name; ///< as QTextCodec knows it
    QString title;   ///< for a list to choose from
};

/// The code pages that can be chosen: first the system's, then the usual ones of Windows, as far as
/// Qt can read them.
std::vector<CodePage> offeredCodePages();

/// True where both names mean the same code page.
bool isSameCodePage(const QByteArray& first, const QByteArray& second);
