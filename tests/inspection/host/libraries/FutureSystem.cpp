// Stands for a C library of some later year.

extern "C" [[gnu::visibility("default")]] int fromTheFuture()
{
    return 1;
}
