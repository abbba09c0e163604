#include <cstdio>

[[gnu::visibility("default")]] void CreateConfigReg()
{
    std::puts("create=");
}
