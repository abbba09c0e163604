#pragma once

#include "trace/operations/Operation.h"
#include "trace/reading/RecordedValue.h"

#include <functional>
#include <utility>

namespace trace {

/// Values of a recording as people read them: texts in quotation marks, numbers by their Windows
/// names, handles with what they stand for.
class ValueText
{
public:
    /// Makes what is shown of a handle; the handles of a value come in its order.
    using HandleText = std::function<QString(const QString& handle)>;

    enum class Form
    {
        Shown, ///< long data is shortened
        Whole,
        ByRole ///< whole, but without what differs from run to run: addresses and times
    };

    explicit ValueText(HandleText handleText, Form form = Form::Shown)
        : m_handleText(std::move(handleText)), m_form(form)
    {
    }

    /// `names` are the Windows names of a number.
    QString of(const RecordedValue& value, const Rows<BitName>& names = {}) const;

private:
    QString data(const RecordedValue& value) const;
    QString pointer(const RecordedValue& value) const;
    QString address(const QString& address, const char* role) const;
    QString member(const RecordedMember& member) const;
    QString record(const RecordedValue& record) const;

    HandleText m_handleText;
    Form m_form;
};

} // namespace trace
