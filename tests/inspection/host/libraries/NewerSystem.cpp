// Built where the C library was newer.

extern "C" int fromTheFuture();

[[gnu::visibility("default")]] int useTheFuture()
{
    return fromTheFuture();
}
