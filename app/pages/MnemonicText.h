#pragma once

#include <QString>

/// `caption` without its mnemonic: what an assistive tool reads out. Chinese captions carry theirs
/// in brackets at the end.
QString withoutMnemonic(const QString& caption);
