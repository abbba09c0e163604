#pragma once

#include "platform/WindowsTypes.h"

#include <QString>

#include <vector>

/// One record of the font service, in the words of this application.
struct RegisteredFont
{
    QString face;
    QString fullName;
    QString style;
    QString script;
    BYTE charSet = DEFAULT_CHARSET;
    int weight = 0; ///< 100 to 900; 0 where the record leaves it open
    bool italic = false;
};

/// What the font service answers.
namespace FontCatalogue {

/// The records of a family, by its local or its global name, and of a character set. An empty name
/// stands for all families, DEFAULT_CHARSET for all sets.
std::vector<RegisteredFont> records(const QString& face = {}, BYTE charSet = DEFAULT_CHARSET);

/// How many records there are; asking for that is cheap.
int count();

/// The global name that stands for a local one; empty where the service knows none.
QString globalName(const QString& localName);

/// Registers a font under a global name. Its face name has at most 31 characters.
void add(const QString& globalName, const RegisteredFont& font);

/// Whether a name fits the face name of a record, with its terminator.
bool fits(const QString& face);

} // namespace FontCatalogue
