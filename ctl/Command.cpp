#include "ctl/Command.h"

Command::~Command() = default;

void Command::addOptions(QCommandLineParser& /*parser*/) const {}
