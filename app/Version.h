#pragma once

/// The program's version, as the build has it: "1.2.3".
const char* programVersion();
