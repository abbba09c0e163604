// Stands for a C library of some later year.

extern "C" [[gnu::visibility("default")]] int fromTheFuture()
{
    return 1;
}

// The one that is there today has an older version.
extern "C" [[gnu::visibility("default")]] const char* gnu_get_libc_version()
{
    return "2.99";
}
