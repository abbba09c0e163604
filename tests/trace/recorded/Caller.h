#pragma once

class IPlatformServices;

/// What a host library does with the services, one way after the other. Each prints what it got.
#pragma GCC visibility push(default)

/// Every operation of every interface: with arguments that make it work, with null, and with
/// buffers that are too small. Pointers are printed as "set" or "null", buffers in hexadecimal.
void callEverything(IPlatformServices& services);

/// Ends the process in the middle of an enumeration of fonts: by "crash", "kill" or "exit".
void endInTheMiddle(IPlatformServices& services, const char* way);

/// Leaves enumerations by an exception and by a jump, calls from within one and from a thread.
void callAcross(IPlatformServices& services);

/// Reads and writes a value of the registry so many times.
void callOften(IPlatformServices& services, int times);

/// Makes about so many calls of most operations, chosen by the seed.
void callAtRandom(IPlatformServices& services, unsigned int seed, int times);

#pragma GCC visibility pop
