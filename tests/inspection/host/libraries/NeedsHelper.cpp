// Needs another library of the same maker.

int helperNumber();

[[gnu::visibility("default")]] int useHelper()
{
    return helperNumber();
}
