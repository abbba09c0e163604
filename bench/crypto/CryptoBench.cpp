// Compares the crypto library with well-kept libraries. The measuring is done in fresh processes,
// once with the peers' processor-specific code masked and once with it: the libraries choose when
// they are loaded. With an argument this is one of those processes.

#include "bench/crypto/Pairs.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>

namespace {

constexpr int processes = 5;

/// How much slower the probe must be where its instructions are masked.
constexpr double leastMaskFactor = 1.5;

/// Clears the bits for SSSE3, AES-NI and AVX, and takes nettle's portable code.
constexpr const char* masks =
    "OPENSSL_ia32cap='~0x1200020000000000:0' OPENSSL_armcap=0 NETTLE_FAT_OVERRIDE=none ";

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void measure(bool masked)
{
    Pairs pairs;
    addMaskProbe(pairs);
    if (masked) {
        addCipherPairs(pairs);
    } else {
        addDigestPairs(pairs);
        addBase64Pairs(pairs);
    }
    for (const Result& result : runPairs(pairs))
        std::cout << result.name << '\t' << result.wanted << '\t' << result.ours << '\t'
                  << result.peer << '\n';
}

/// What several processes found, in the order of the pairs.
class Findings
{
public:
    void take(const std::string& line)
    {
        std::istringstream fields(line);
        std::string name;
        Result result{};
        if (!std::getline(fields, name, '\t') ||
            !(fields >> result.wanted >> result.ours >> result.peer))
            return;
        if (m_results.count(name) == 0)
            m_names.push_back(name);
        result.name = name;
        m_results[name].push_back(result);
    }

    double medianPeer(const std::string& name) const
    {
        return medianOf(name, [](const Result& result) { return result.peer; });
    }

    void print() const
    {
        for (const std::string& name : m_names) {
            const double wanted = m_results.at(name).front().wanted;
            if (wanted == 0)
                continue;
            const double ratio =
                medianOf(name, [](const Result& result) { return result.ours / result.peer; });
            std::printf("%-60s %8.1f MB/s %8.1f MB/s  %5.2f  (at least %.1f)%s\n", name.c_str(),
                        medianOf(name, [](const Result& result) { return result.ours; }) / 1e6,
                        medianPeer(name) / 1e6, ratio, wanted, ratio < wanted ? "  BELOW" : "");
        }
    }

private:
    template <class Field>
    double medianOf(const std::string& name, Field field) const
    {
        std::vector<double> values;
        for (const Result& result : m_results.at(name))
            values.push_back(field(result));
        return median(values);
    }

    std::vector<std::string> m_names;
    std::map<std::string, std::vector<Result>> m_results;
};

using Pipe = std::unique_ptr<FILE, int (*)(FILE*)>;

/// Lets one process find out more; throws where it fails; the process has said why.
void runProcess(const std::string& command, Findings& findings)
{
    Pipe pipe(popen(command.c_str(), "r"), &pclose);
    if (!pipe)
        throw std::runtime_error("cannot start " + command);
    char line[512];
    while (std::fgets(line, sizeof line, pipe.get()))
        findings.take(line);
    if (pclose(pipe.release()) != 0)
        throw std::runtime_error("failed: " + command);
}

Findings runProcesses(const std::string& command)
{
    Findings findings;
    for (int i = 0; i < processes; ++i)
        runProcess(command, findings);
    return findings;
}

void printMaskFactor(double factor)
{
    std::printf("The mask makes OpenSSL's AES-128 CBC decryption %.1f times slower.%s\n", factor,
                factor < leastMaskFactor ? "  MASK HAS NO EFFECT" : "");
}

void compare(const std::string& program)
{
    const Findings masked = runProcesses(masks + program + " masked");
    const Findings native = runProcesses(program + " native");
    std::printf("%-60s %13s %13s  ratio\n", "", "ours", "peer");
    masked.print();
    native.print();
    printMaskFactor(native.medianPeer("probe") / masked.medianPeer("probe"));
}

} // namespace

int main(int argc, char** argv)
{
    try {
        if (argc > 1)
            measure(std::strcmp(argv[1], "masked") == 0);
        else
            compare(std::string("'") + argv[0] + "'");
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "crypto_bench: " << error.what() << '\n';
        return 1;
    }
}
