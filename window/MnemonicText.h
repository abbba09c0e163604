#pragma once

#include <QString>

/// `caption` without its mnemonic and its colon: what an assistive tool reads out. Chinese captions
/// carry the mnemonic in brackets behind the words.
QString withoutMnemonic(const QString& caption);
