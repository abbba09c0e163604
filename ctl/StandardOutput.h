#pragma once

#include <QCoreApplication>
#include <QIODevice>

/// The program's standard output, with a buffer. A write that fails is an error of the device, and
/// a Failure where it is noticed by `put` or `finish`.
class StandardOutput : public QIODevice
{
    Q_DECLARE_TR_FUNCTIONS(StandardOutput)

public:
    enum class Use
    {
        Print,
        Drop ///< what is written goes nowhere
    };

    explicit StandardOutput(Use use = Use::Print);

    bool isSequential() const override { return true; }
    /// True where people read it.
    bool isTerminal() const;

    /// Writes bytes; throws a Failure where that is not possible.
    void put(const QByteArray& bytes);
    /// Writes what is in the buffer; throws likewise.
    void finish();

protected:
    qint64 readData(char* data, qint64 size) override;
    qint64 writeData(const char* data, qint64 size) override;

private:
    bool flushBuffer();
    void check(bool good) const;

    Use m_use;
    QByteArray m_buffer;
};
