// Wants a C++ function as one with C linkage.

extern "C" int strcpy_s(char* destination, int size, const char* source);

[[gnu::visibility("default")]] int useCLinkage(char* text)
{
    return strcpy_s(text, 1, text);
}
