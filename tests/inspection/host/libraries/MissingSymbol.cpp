// Wants a function that nothing supplies.

namespace store {
struct Record;
int neverWritten(const Record* record, int count);
} // namespace store

[[gnu::visibility("default")]] int useMissingSymbol()
{
    return store::neverWritten(nullptr, 1);
}
