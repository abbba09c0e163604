#pragma once

#include <QString>

/// A line of the audit trail about one entry that was changed: `place: "name": before -> after`.
///
/// `place` is the key, or the file, the family and the section. A null text stands for an entry
/// that is not there ("absent"), a null `name` for the place itself. A text longer than 80
/// characters is shortened, with its length told; control characters are escaped. Where the name
/// is one of a secret ("Password", "ApiToken"), neither value is told. The line is not translated:
/// logs are searched, and compared between machines.
QString changeLine(const QString& place, const QString& name, const QString& before,
                   const QString& after);
