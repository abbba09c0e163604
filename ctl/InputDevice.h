#pragma once

#include <QCoreApplication>
#include <QIODevice>

/// A file, a pipe or the standard input as a stream of bytes. What waits for it ends as soon as the
/// program is to end: by an error then, so that whoever reads it asks Interruption::check().
class InputDevice : public QIODevice
{
    Q_DECLARE_TR_FUNCTIONS(InputDevice)

public:
    /// Opens a file; the standard input for an empty name and for "-". Throws a Failure where that
    /// is not possible.
    explicit InputDevice(const QString& name);
    /// An open descriptor, which stays open.
    explicit InputDevice(int descriptor);
    ~InputDevice() override;

    bool isSequential() const override { return true; }
    /// In bytes; 0 where it is not known.
    qint64 size() const override;
    /// The name for messages.
    const QString& name() const { return m_name; }

protected:
    qint64 readData(char* data, qint64 size) override;
    qint64 writeData(const char* data, qint64 size) override;

private:
    QString m_name;
    int m_descriptor;
    bool m_isOwn; ///< to be closed
};
