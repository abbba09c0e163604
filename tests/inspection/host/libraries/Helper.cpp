// A library that others need.

[[gnu::visibility("default")]] int helperNumber()
{
    return 7;
}
