#pragma once

#include <QString>

class QTranslator;

/// Reads the options, hands `g_PlatformServices` to the host library and installs the translators
/// where Chinese is chosen. Reports nothing.
///
/// `argc` and `argv` are what QApplication left of them. Options are pairs of a key and a value,
/// read only when the arguments form whole pairs; a malformed line is ignored. "/language" with the
/// value "zh-CN" chooses Chinese, and so does a configured language identifier of 2052.
void parseCommandLine(int argc, char** argv, QTranslator& appTranslator, QTranslator& qtTranslator);

/// The value of the option "/page", read by the same rules: the name of the page to open the window
/// on. Empty when the option is not given.
QString requestedPage(int argc, char** argv);

/// The value of the option "/open", read by the same rules: the path of a file to open in the page
/// for it. Empty when the option is not given.
QString requestedFile(int argc, char** argv);
