#include "ctl/crypto/KeyOptions.h"

#include "ctl/Arguments.h"
#include "ctl/Failure.h"
#include "ctl/crypto/Secret.h"
#include "inspection/crypto/TypedKey.h"

namespace {

struct KeyOptionsTexts
{
    Q_DECLARE_TR_FUNCTIONS(KeyOptions)
};

std::string typedKey(const Arguments& arguments, const char* option, TypedKey::Kind kind)
{
    const std::string text = Secret::fromFile(arguments.value(option));
    const TypedKey key(kind, QString::fromStdString(text), arguments.has("hex"));
    if (!key.problem().isEmpty())
        throw Failure(ExitStatus::WrongUsage, key.problem());
    return key.bytes().toStdString();
}

std::string typedPassPhrase(KeyOptions::Use use)
{
    std::string text = Secret::asked(KeyOptionsTexts::tr("Pass phrase"));
    if (use == KeyOptions::Use::Encrypt && !text.empty() &&
        Secret::asked(KeyOptionsTexts::tr("Pass phrase again")) != text)
        throw Failure(ExitStatus::WrongUsage,
                      KeyOptionsTexts::tr("The two pass phrases are not the same."));
    return text;
}

std::string passPhrase(const Arguments& arguments, KeyOptions::Use use)
{
    if (arguments.has("pass-phrase-file"))
        return Secret::fromFile(arguments.value("pass-phrase-file"));
    if (!arguments.has("pass-phrase-fd"))
        return typedPassPhrase(use);
    bool isNumber = false;
    const int descriptor = arguments.value("pass-phrase-fd").toInt(&isNumber);
    if (!isNumber)
        throw Failure(ExitStatus::WrongUsage,
                      KeyOptionsTexts::tr("A descriptor is a number, not \"%1\".")
                          .arg(arguments.value("pass-phrase-fd")));
    return Secret::fromDescriptor(descriptor);
}

// An empty one is a slip, such as a file that has not been written yet.
std::string neededPassPhrase(const Arguments& arguments, KeyOptions::Use use)
{
    std::string text = passPhrase(arguments, use);
    if (text.empty())
        throw Failure(ExitStatus::WrongUsage, KeyOptionsTexts::tr("The pass phrase is empty."));
    return text;
}

} // namespace

void KeyOptions::add(QCommandLineParser& parser)
{
    const QString file = QStringLiteral("FILE");
    parser.addOptions(
        {{QStringLiteral("pass-phrase-file"),
          KeyOptionsTexts::tr("The pass phrase is the contents of this file; without any such "
                              "option it is asked for on the terminal."),
          file},
         {QStringLiteral("pass-phrase-fd"),
          KeyOptionsTexts::tr("The pass phrase is read from this descriptor."),
          QStringLiteral("NUMBER")},
         {QStringLiteral("key-file"), KeyOptionsTexts::tr("The key is the contents of this file."),
          file},
         {QStringLiteral("iv-file"), KeyOptionsTexts::tr("The IV is the contents of this file."),
          file},
         {QStringLiteral("hex"),
          KeyOptionsTexts::tr("Key and IV are pairs of hexadecimal digits.")}});
}

KeySource KeyOptions::sourceOf(const Arguments& arguments)
{
    return arguments.has("key-file") || arguments.has("iv-file") ? KeySource::KeyAndIv
                                                                 : KeySource::PassPhrase;
}

CipherKeys KeyOptions::of(const Arguments& arguments, Use use)
{
    if (sourceOf(arguments) == KeySource::PassPhrase)
        return keysFromPassPhrase(neededPassPhrase(arguments, use));
    if (!arguments.has("key-file") || !arguments.has("iv-file") ||
        arguments.has("pass-phrase-file") || arguments.has("pass-phrase-fd"))
        throw Failure(ExitStatus::WrongUsage,
                      KeyOptionsTexts::tr("Give a pass phrase, or both --key-file and --iv-file."));
    return {typedKey(arguments, "key-file", TypedKey::Kind::Key),
            typedKey(arguments, "iv-file", TypedKey::Kind::Iv)};
}
