#include "tests/ctl/CtlTest.h"

namespace {

class CtlCrypto : public CtlTest
{
protected:
    CtlCrypto() { write("phrase", "open sesame\n"); }

    Result encrypt(const QByteArray& text) const
    {
        return run({"crypto", "encrypt", "--pass-phrase-file", "phrase"}, text);
    }
    Result decrypt(const QByteArray& text) const
    {
        return run({"crypto", "decrypt", "--pass-phrase-file", "phrase"}, text);
    }
};

TEST_F(CtlCrypto, DecryptsWhatItHasEncrypted)
{
    const Result encrypted = encrypt("text 文");
    EXPECT_EQ(encrypted.status, 0);
    EXPECT_EQ(encrypted.out.size(), 24);
    const Result decrypted = decrypt(encrypted.out);
    EXPECT_EQ(decrypted.status, 0);
    EXPECT_EQ(decrypted.out, "text 文");
}

TEST_F(CtlCrypto, WorksOnFilesOfAnySize)
{
    QByteArray large;
    for (int i = 0; i < 300000; ++i)
        large += "0123456789";
    write("plain", large);
    EXPECT_EQ(status({"crypto", "encrypt", "plain", "--output", "cipher", "--pass-phrase-file",
                      "phrase"}),
              0);
    EXPECT_EQ(status({"crypto", "decrypt", "cipher", "--output", "again", "--pass-phrase-file",
                      "phrase"}),
              0);
    EXPECT_TRUE(read("again") == large);
}

TEST_F(CtlCrypto, TakesSecretsFromADescriptorAndAPrompt)
{
    write("cipher", encrypt("text").out);
    EXPECT_EQ(shell("$CTL crypto decrypt cipher --pass-phrase-fd 5 5<phrase").out, "text");
    EXPECT_EQ(status({"crypto", "decrypt", "cipher", "--pass-phrase-fd", "x"}), 2);
    EXPECT_EQ(status({"crypto", "decrypt", "cipher", "--pass-phrase-file", "none"}), 3);
    const Result asked = shell("(sleep 1; echo open sesame) | script -qec '$CTL crypto decrypt "
                               "cipher --output plain' /dev/null");
    EXPECT_EQ(asked.status, 0);
    EXPECT_EQ(read("plain"), "text");
    EXPECT_EQ(shell("setsid $CTL crypto decrypt cipher").status, 3);
}

TEST_F(CtlCrypto, TakesAKeyAndAnIv)
{
    write("key", "00112233445566778899aabbccddeeff\n");
    write("iv", "000102030405060708090a0b0c0d0e0f\n");
    const QStringList options = {"--key-file", "key", "--iv-file", "iv", "--hex"};
    const QByteArray cipher = run(QStringList{"crypto", "encrypt"} + options, "text").out;
    EXPECT_EQ(run(QStringList{"crypto", "decrypt"} + options, cipher).out, "text");
    EXPECT_EQ(run({"crypto", "encrypt", "--key-file", "key"}, "text").status, 2);
    write("key", "not hexadecimal");
    EXPECT_EQ(run(QStringList{"crypto", "encrypt"} + options, "text").status, 2);
}

TEST_F(CtlCrypto, TellsWhyADecryptionHasFailedAndPrintsNothing)
{
    const Result damaged = decrypt("AAAAAAAAAAAAAAAAAAAAAA==");
    EXPECT_EQ(damaged.status, 3);
    EXPECT_TRUE(damaged.error.contains("Wrong pass phrase, or damaged cipher text"));
    EXPECT_EQ(damaged.out, "");
    EXPECT_TRUE(decrypt("AAAA").error.contains("3 bytes are not whole blocks"));
    EXPECT_TRUE(decrypt("!").error.contains("no URL-safe Base64"));
    write("cipher", "AAAA");
    EXPECT_EQ(status({"crypto", "decrypt", "cipher", "--output", "plain", "--pass-phrase-file",
                      "phrase"}),
              3);
    EXPECT_EQ(shell("test -e plain").status, 1);
}

TEST_F(CtlCrypto, TellsWhatCannotBeReadBack)
{
    const Result result = encrypt(QByteArray("a\0b", 3));
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.error.contains("zero byte"));
    EXPECT_EQ(decrypt(result.out).status, 1);
    EXPECT_EQ(decrypt(result.out).out, "a");
}

TEST_F(CtlCrypto, PrintsDigests)
{
    const Result result = run({"crypto", "digest"}, "abc");
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.out.startsWith(
        "sha256\tBA7816BF8F01CFEA414140DE5DAE2223B00361A396177A9CB410FF61F20015AD\n"));
    EXPECT_TRUE(result.out.contains("\nrfc-md5\t900150983cd24fb0d6963f7d28e17f72\n"));
    EXPECT_EQ(result.out.count('\n'), 4);
    write("file", "abc");
    EXPECT_EQ(out({"crypto", "digest", "file"}), result.out);
    EXPECT_TRUE(out({"crypto", "digest", "file", "--second", "x"}).contains("\nkd\t"));
    EXPECT_EQ(status({"crypto", "digest", "none"}), 3);
    EXPECT_EQ(status({"crypto", "digest", "."}), 3);
}

TEST_F(CtlCrypto, EncodesAndDecodesBase64)
{
    EXPECT_EQ(run({"crypto", "base64"}, "any carnal pleas").out, "YW55IGNhcm5hbCBwbGVhcw==");
    EXPECT_EQ(run({"crypto", "base64", "--decode"}, "YW55IGNhcm5hbCBwbGVhcw==\n").out,
              "any carnal pleas");
    const Result cut = run({"crypto", "base64", "--decode"}, "YW55+IGNh");
    EXPECT_EQ(cut.status, 1);
    EXPECT_EQ(cut.out, "any");
    EXPECT_TRUE(cut.error.contains("first 4 characters"));
    const Result none = run({"crypto", "base64", "--decode"}, "!");
    EXPECT_EQ(none.status, 3);
    EXPECT_EQ(run({"--json", "crypto", "base64"}, "x").status, 2);
    EXPECT_EQ(run({"crypto", "base64", "--output", "none/x"}, "x").status, 3);
}

TEST_F(CtlCrypto, WritesIntoAPipeThatIsThereAndAppendsWhereTheOutputIs)
{
    write("h", "hello");
    EXPECT_EQ(shell("mkfifo pipe; timeout 60 cat pipe >got & "
                    "$CTL crypto base64 h --output pipe; wait; test -p pipe")
                  .status,
              0);
    EXPECT_TRUE(read("got").startsWith("aGVsbG8"));
    write("log", "before\n");
    EXPECT_EQ(shell("$CTL crypto base64 h --output /dev/stdout >>log").status, 0);
    EXPECT_EQ(read("log"), "before\n" + read("got"));
}

// The answers come when the questions are there.
TEST_F(CtlCrypto, AsksTwiceForThePassPhraseThatIsToEncrypt)
{
    write("plain", "text");
    const QString script("rm -f typed; (until grep -qs 'Pass phrase:' typed; do sleep 0.05; done;"
                         " echo one;"
                         " until grep -qs 'Pass phrase again:' typed; do sleep 0.05; done;"
                         " echo %1) | timeout 20 script -qefc "
                         "\"$CTL crypto encrypt plain --output cipher\" typed");
    EXPECT_EQ(shell(script.arg("other")).status, 2);
    EXPECT_EQ(shell("test -e cipher").status, 1);
    EXPECT_EQ(shell(script.arg("one")).status, 0);
    write("phrase", "one");
    EXPECT_EQ(decrypt(read("cipher")).out, "text");
}

TEST_F(CtlCrypto, NeedsAPassPhrase)
{
    write("empty", "\n");
    EXPECT_EQ(run({"crypto", "encrypt", "--pass-phrase-file", "empty"}, "text").status, 2);
    // The terminal ends once the question is there.
    EXPECT_EQ(shell("(until grep -qs 'Pass phrase' typed; do sleep 0.05; done; printf '\\004') |"
                    "timeout 20 script -qefc \"$CTL crypto encrypt empty\" typed")
                  .status,
              3);
}

} // namespace
