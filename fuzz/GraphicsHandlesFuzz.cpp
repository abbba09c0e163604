#include "fuzz/Expectation.h"
#include "fuzz/FuzzInput.h"
#include "platform/PlatformResourceManagerImp.h"

#include <QImage>

#include <map>

namespace {

using Manager = IPlatformResourceManager;

// The table as a plain map from number to object, a map for each type.
class PlainTable
{
public:
    void* enter(int type, void* object)
    {
        std::map<int, void*>& objects = m_objects[type];
        int number = 1;
        while (objects.count(number) != 0)
            ++number;
        objects[number] = object;
        return handleOf(type, number);
    }

    void remove(const void* handle) { m_objects[typeOf(handle)].erase(numberOf(handle)); }

    void* find(const void* handle, int type)
    {
        std::map<int, void*>& objects = m_objects[type];
        const auto found = objects.find(numberOf(handle));
        return typeOf(handle) == type && found != objects.end() ? found->second : nullptr;
    }

private:
    static void* handleOf(int type, int number)
    {
        return reinterpret_cast<void*>(static_cast<std::uintptr_t>(type << 16 | number));
    }
    static int typeOf(const void* handle)
    {
        return static_cast<int>(reinterpret_cast<std::uintptr_t>(handle) >> 16U);
    }
    static int numberOf(const void* handle)
    {
        return static_cast<int>(reinterpret_cast<std::uintptr_t>(handle) & 0xFFFFU);
    }

    std::map<int, std::map<int, void*>> m_objects;
};

// Both tables side by side.
class Session
{
public:
    explicit Session(FuzzInput& input) : m_input(input) {}

    void step()
    {
        switch (m_input.ConsumeIntegralInRange(0, 5)) {
        case 0: enterImage(); break;
        case 1: enterBrush(); break;
        case 2: enterCursor(); break;
        case 3: remove(); break;
        case 4: readImage(); break;
        default: find();
        }
    }

private:
    void* anyHandle()
    {
        const auto type = m_input.ConsumeIntegralInRange<std::uintptr_t>(0, 5);
        return reinterpret_cast<void*>(type << 16U |
                                       m_input.ConsumeIntegralInRange<std::uintptr_t>(0, 40));
    }

    void enterImage()
    {
        const auto width = m_input.ConsumeIntegralInRange(-1, 40);
        void* handle = m_manager.createImage(0, width, 7);
        void* image = m_manager.fromHandle(handle, Manager::ObjImage);
        expectThat(image && m_plain.enter(Manager::ObjImage, image) == handle,
                   "an image gets the lowest number that is free");
    }

    void enterBrush()
    {
        const auto color = m_input.ConsumeIntegral<unsigned int>();
        void* object = reinterpret_cast<void*>(static_cast<std::uintptr_t>(color));
        expectThat(m_manager.createBrush(color) == m_plain.enter(Manager::ObjBrush, object),
                   "so does a brush");
    }

    void enterCursor()
    {
        void* object = m_input.ConsumeBool() ? &m_cursor : nullptr;
        expectThat(m_manager.addObject(Manager::ObjCursor, object) ==
                       m_plain.enter(Manager::ObjCursor, object),
                   "so does a cursor");
    }

    void remove()
    {
        void* handle = anyHandle();
        m_manager.deleteObject(handle);
        m_plain.remove(handle);
    }

    void find()
    {
        void* handle = anyHandle();
        for (const auto type : {Manager::ObjImage, Manager::ObjCursor, Manager::ObjBrush})
            expectThat(m_manager.fromHandle(handle, type) == m_plain.find(handle, type),
                       "what was entered is found under its handle and type alone");
        const auto wild = m_input.ConsumeIntegral<std::uintptr_t>() | std::uintptr_t{1} << 40U;
        expectThat(!m_manager.fromHandle(reinterpret_cast<void*>(wild), Manager::ObjImage),
                   "nothing is found under a wide pointer");
    }

    void readImage()
    {
        void* handle = anyHandle();
        const auto* image = static_cast<QImage*>(m_plain.find(handle, Manager::ObjImage));
        const auto count = m_input.ConsumeIntegralInRange(0U, 2000U);
        QByteArray pixels(static_cast<int>(count), '\0');
        const bool fits = image && count != 0 && image->sizeInBytes() == count;
        expectThat(m_manager.GetBitmapBits(count, pixels.data(), handle) ==
                       (fits ? static_cast<int>(count) : 0),
                   "pixels are copied into a buffer of their very size");
        BITMAP bitmap = {};
        expectThat(m_manager.GetBitmap(&bitmap, handle) == (image ? 1 : 0), "images are described");
    }

    FuzzInput& m_input;
    PlatformResourceManagerImp m_manager;
    PlainTable m_plain;
    QImage m_cursor;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    Session session(input);
    while (input.remaining_bytes() > 0)
        session.step();
    return 0;
}
