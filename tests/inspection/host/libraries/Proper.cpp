// A host library as it should be: it uses what the platform-base library supplies, and Qt.

#include <QString>

#include <string>

int strcpy_s(char* destination, int size, const char* source);

extern "C" [[gnu::weak]] void suppliedSometimes();

[[gnu::visibility("default")]] int copiedLength(const QString& text)
{
    char copy[100] = {};
    if (suppliedSometimes)
        suppliedSometimes();
    const std::string bytes = text.toStdString();
    return strcpy_s(copy, sizeof copy, bytes.c_str());
}
