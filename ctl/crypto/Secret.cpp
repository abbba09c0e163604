#include "ctl/crypto/Secret.h"

#include "ctl/ByteInput.h"
#include "ctl/Failure.h"
#include "ctl/InputDevice.h"
#include "ctl/Interruption.h"

#include <QCoreApplication>
#include <QFile>

#include <termios.h>

namespace {

struct SecretTexts
{
    Q_DECLARE_TR_FUNCTIONS(Secret)
};

// What is typed is not shown while one lives.
class HiddenTyping
{
public:
    explicit HiddenTyping(int terminal) : m_terminal(terminal)
    {
        m_isSet = tcgetattr(terminal, &m_former) == 0;
        termios hidden = m_former;
        hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        m_isSet = m_isSet && tcsetattr(terminal, TCSAFLUSH, &hidden) == 0;
    }
    ~HiddenTyping()
    {
        if (m_isSet)
            tcsetattr(m_terminal, TCSAFLUSH, &m_former);
    }

    HiddenTyping(const HiddenTyping&) = delete;
    HiddenTyping& operator=(const HiddenTyping&) = delete;

    bool isHidden() const { return m_isSet; }

private:
    int m_terminal;
    termios m_former{};
    bool m_isSet = false;
};

std::string withoutLineEnd(QByteArray text)
{
    if (text.endsWith('\n'))
        text.chop(1);
    if (text.endsWith('\r'))
        text.chop(1);
    return text.toStdString();
}

// With its end; empty where the terminal ends first.
QByteArray typedLine(int terminal)
{
    QByteArray line;
    char byte = 0;
    while (!line.endsWith('\n') && Interruption::read(terminal, &byte, 1) > 0)
        line += byte;
    Interruption::check();
    return line;
}

} // namespace

std::string Secret::fromFile(const QString& name)
{
    InputDevice file(name);
    return withoutLineEnd(ByteInput::readAll(file));
}

std::string Secret::fromDescriptor(int descriptor)
{
    InputDevice file(descriptor);
    return withoutLineEnd(ByteInput::readAll(file));
}

std::string Secret::asked(const QString& question)
{
    QFile terminal(QStringLiteral("/dev/tty"));
    if (!terminal.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        throw Failure(
            SecretTexts::tr("There is no terminal to ask for the secret on: name a file."));
    const HiddenTyping hidden(terminal.handle());
    if (!hidden.isHidden())
        throw Failure(SecretTexts::tr("The terminal would show the secret: name a file."));
    terminal.write(question.toLocal8Bit() + ": ");
    const QByteArray text = typedLine(terminal.handle());
    terminal.write("\n");
    if (text.isEmpty())
        throw Failure(SecretTexts::tr("No secret has been typed."));
    return withoutLineEnd(text);
}
