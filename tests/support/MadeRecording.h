#pragma once

#include <QByteArray>

/// Recordings that tests write by hand, line by line.
class MadeRecording
{
public:
    MadeRecording() : m_bytes(header()) {}

    /// The first line, with its end.
    static QByteArray header()
    {
        return "{\"quaysideTrace\":1,\"version\":\"1.0.0\",\"qt\":\"5.15.8\",\"architecture\":"
               "\"x86_64\",\"locale\":\"C\",\"started\":\"2026-11-22T02:40:00.123Z\",\"program\":"
               "[\"./program\"],\"options\":{\"all\":false,\"hideData\":false,\"text\":null},"
               "\"libraries\":[{\"path\":\"/x/libfoo.so\",\"buildId\":\"ab12\"}]}\n";
    }

    /// What a call was given and what it did, as JSON.
    struct Call
    {
        const char* manager;
        const char* operation;
        QByteArray arguments = "{}";
        QByteArray result = "0";
        QByteArray outputs = "{}";
        QByteArray more = {}; ///< members, each with a comma behind it
        const char* caller = "libfoo.so+0x10";
    };

    /// The line of a call that has returned, with its end.
    static QByteArray line(int number, const Call& call)
    {
        return begun(number, call).chopped(2) + ",\"d\":" + QByteArray::number(1000 * number) +
               ",\"result\":" + call.result + ",\"out\":" + call.outputs + "}\n";
    }
    /// The line that is written when the call begins.
    static QByteArray begun(int number, const Call& call)
    {
        return "{\"n\":" + QByteArray::number(number) +
               ",\"t\":" + QByteArray::number(number * 50) + ",\"thread\":1,\"depth\":0," +
               call.more + "\"caller\":\"" + call.caller + "\",\"manager\":\"" + call.manager +
               "\",\"op\":\"" + call.operation +
               "\",\"object\":\"0x1\",\"args\":" + call.arguments + "}\n";
    }

    /// Adds a call with the next number.
    MadeRecording& add(const Call& call)
    {
        m_bytes += line(++m_number, call);
        return *this;
    }
    MadeRecording& addBytes(const QByteArray& bytes)
    {
        m_bytes += bytes;
        return *this;
    }

    const QByteArray& bytes() const { return m_bytes; }

    static Call open(const QByteArray& key, const QByteArray& subKey, const QByteArray& handle)
    {
        return {"register", "RegOpenKeyExW",
                "{\"key\":{\"handle\":\"" + key + "\"},\"subKey\":{\"text\":\"" + subKey +
                    "\"},\"options\":{\"flags\":0,\"names\":[]},\"access\":{\"flags\":131097,"
                    "\"names\":[\"KEY_READ\"]},\"result\":{\"pointer\":\"0x7ff0\"}}",
                handle.isEmpty() ? "2" : "0",
                handle.isEmpty() ? QByteArray("{\"result\":null}")
                                 : "{\"result\":{\"handle\":\"" + handle + "\"}}"};
    }
    static Call close(const QByteArray& key)
    {
        return {"register", "RegCloseKey", "{\"key\":{\"handle\":\"" + key + "\"}}"};
    }
    /// The value has four bytes, in hexadecimal digits; without them it is absent.
    static Call query(const QByteArray& key, const QByteArray& name, const QByteArray& digits)
    {
        return {"register", "RegQueryValueExW",
                "{\"key\":{\"handle\":\"" + key + "\"},\"valueName\":{\"text\":\"" + name +
                    "\"},\"reserved\":null,\"type\":{\"pointer\":\"0x7ff1\"},\"data\":{\"pointer\":"
                    "\"0x7ff2\"},\"byteCount\":4}",
                digits.isEmpty() ? "1" : "0",
                digits.isEmpty() ? QByteArray("{}")
                                 : "{\"type\":4,\"data\":{\"data\":\"" + digits +
                                       "\",\"length\":4},\"byteCount\":4}"};
    }

private:
    QByteArray m_bytes;
    int m_number = 0;
};
