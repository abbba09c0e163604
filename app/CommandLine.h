#pragma once

class QTranslator;

/// Reads the options, hands `g_PlatformServices` to the host library and installs the translators
/// where Chinese is chosen. Reports nothing.
///
/// `argc` and `argv` are what QApplication left of them. Options are pairs of a key and a value,
/// read only when the arguments form whole pairs; a malformed line is ignored. "/language" with the
/// value "zh-CN" chooses Chinese, and so does a configured language identifier of 2052.
void parseCommandLine(int argc, char** argv, QTranslator& appTranslator, QTranslator& qtTranslator);
