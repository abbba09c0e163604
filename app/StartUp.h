#pragma once

#include <QString>

class QTranslator;

/// What every program does that starts host libraries.
namespace StartUp {

/// Hands `g_PlatformServices` to the host library, which sets its store up, and then sets the
/// configuration library up, where there is one, for the language asked for (empty: none). Returns
/// the configured language as a Windows language identifier, or 0.
int handOver(const QString& requestedLanguage);

/// True for the identifier of the language that the catalogue is in.
bool isChinese(int identifier);

/// Installs the Chinese catalogues, the program's own and Qt's. The translators outlive their use.
void installChinese(QTranslator& appTranslator, QTranslator& qtTranslator);

} // namespace StartUp
