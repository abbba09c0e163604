#include "tests/crypto/VectorFile.h"

#include <fstream>

namespace {

class Reader
{
public:
    void take(const std::string& line)
    {
        if (line.empty())
            endRecord();
        else if (line.front() == '[')
            m_section = line;
        else if (const auto equals = line.find(" = "); equals != std::string::npos)
            m_record[line.substr(0, equals)] = line.substr(equals + 3);
    }

    std::vector<VectorRecord> finish()
    {
        endRecord();
        return m_records;
    }

private:
    void endRecord()
    {
        if (m_record.empty())
            return;
        m_record["section"] = m_section;
        m_records.push_back(m_record);
        m_record.clear();
    }

    std::string m_section;
    VectorRecord m_record;
    std::vector<VectorRecord> m_records;
};

} // namespace

std::vector<VectorRecord> readVectors(const std::string& name)
{
    std::ifstream file(std::string(QUAYSIDE_CRYPTOGRAPHY_VECTORS) + "/" + name);
    Reader reader;
    for (std::string line; std::getline(file, line);) {
        while (!line.empty() && (line.back() == '\r' || line.back() == ' '))
            line.pop_back();
        if (line.empty() || line.front() != '#')
            reader.take(line);
    }
    return reader.finish();
}
