#pragma once

#include <QByteArray>
#include <QString>

/// How the names of sections and keys are written in the files of QSettings, which the wide profile
/// calls and the registry use.
namespace IniName {

/// The name that these bytes stand for: "%41" and "%U0041" are escapes, a backslash stands for "/",
/// and every other byte for the Latin-1 character of its number.
QString unescaped(const QByteArray& bytes);

/// What the full name of each key in a section begins with: the section's name and "/", or nothing
/// for what stands in no group, which is called "General" in the file. `header` begins with "[";
/// the name ends at the first "]" in it, or else with it.
QString sectionPrefix(const QByteArray& header);

} // namespace IniName
