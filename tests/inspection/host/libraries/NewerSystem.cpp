// Built where the C library was newer.

extern "C" int fromTheFuture();
extern "C" const char* gnu_get_libc_version();

[[gnu::visibility("default")]] int useTheFuture()
{
    return fromTheFuture() + *gnu_get_libc_version();
}
