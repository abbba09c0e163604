// Wants a function of C linkage as one of C++, and one that is there with another signature.

char* DecryptionAES_Export(const char* passPhrase, const char* text);
int strcpy_s(char* destination, unsigned long size, const char* source);

[[gnu::visibility("default")]] int useCppLinkage(char* text)
{
    return strcpy_s(text, 1UL, DecryptionAES_Export(text, text));
}
