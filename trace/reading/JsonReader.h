#pragma once

#include "trace/reading/RecordedValue.h"

#include <string_view>

namespace trace {

/// Reads the JSON of one line, member by member, so that what is not wanted need not be copied.
///
/// After the first fault nothing more is read. Bytes that are no UTF-8 become U+FFFD; a control
/// character within a text is a fault.
class JsonReader
{
public:
    /// The text outlives this.
    explicit JsonReader(std::string_view text) : m_at(text.data()), m_end(text.data() + text.size())
    {
    }

    /// Goes into an object; false where there is none.
    bool enterObject();
    /// Goes to the value of the next member; false behind the last one, and the object is left.
    /// `name` is as it is written, with its escapes.
    bool nextMember(std::string_view& name);

    /// The value that stands here.
    RecordedValue value() { return value(0); }
    /// The same as it is written; whether it is well formed within is not looked at closely.
    std::string_view skip();
    /// A number without a fraction; a fault where there is none.
    qint64 integer();
    /// A text as it is written, with its escapes; a fault where there is none.
    std::string_view rawText();

    bool isGood() const { return m_isGood; }
    /// True where all has been read without a fault.
    bool isDone();

private:
    RecordedValue value(int depth);
    RecordedValue word(const char* expected, RecordedValue::Kind kind);
    RecordedValue number();
    void readMembers(RecordedValue& object, int depth);
    void readElements(RecordedValue& array, int depth);
    void skipBlanks();
    void skipPiece(int& depth);
    void skipWord();
    bool take(char character);
    bool fail();
    char current() const { return m_at == m_end ? '\0' : *m_at; }

    const char* m_at;
    const char* m_end;
    bool m_isFirst = true; ///< no member or element of the present object has been read
    bool m_isGood = true;
};

} // namespace trace
