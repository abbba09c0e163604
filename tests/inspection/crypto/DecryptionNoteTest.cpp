#include "inspection/crypto/DecryptionNote.h"

#include <gtest/gtest.h>

namespace {

using Padding = Decryption::Padding;

struct NoteRow
{
    Decryption decryption;
    bool isFailure;
    const char* outcome;
    const char* remarks;
};

class DecryptionNoteTest : public testing::TestWithParam<NoteRow>
{
};

TEST_P(DecryptionNoteTest, PutsTheReasonIntoWords)
{
    const Decryption& decryption = GetParam().decryption;
    const LibraryAnswer answer{KeySource::KeyAndIv, decryption.text()};
    const DecryptionNote note(decryption, answer);
    EXPECT_EQ(note.isFailure(), GetParam().isFailure);
    EXPECT_EQ(note.outcome().toStdString(), GetParam().outcome);
    EXPECT_EQ(note.remarks().toStdString(), GetParam().remarks);
}

INSTANTIATE_TEST_SUITE_P(
    Reasons, DecryptionNoteTest,
    testing::Values(
        NoteRow{{"text", Padding::Removed, 16}, false, "Bytes decrypted: 4.", ""},
        NoteRow{{"", Padding::Removed, 16}, false, "Bytes decrypted: 0.", ""},
        NoteRow{{std::string("ab\0c", 4), Padding::Removed, 16},
                false,
                "Bytes decrypted: 2.",
                "The library ends the text before its first zero byte. Bytes left out: 2."},
        NoteRow{{"", Padding::Absent, 0},
                true,
                "This is no URL-safe Base64: the library decodes nothing of it.",
                ""},
        NoteRow{{"", Padding::Mismatched, 16},
                true,
                "Wrong key or IV, or damaged cipher text: the padding does not match, and the "
                "library gets an empty text.",
                ""},
        NoteRow{{"\xff", Padding::Absent, 16},
                true,
                "Wrong key or IV, or damaged cipher text: there is no padding, and the library "
                "gets these bytes as they are.",
                "They are no text; shown in hexadecimal."},
        NoteRow{{"ABC", Padding::Absent, 3},
                true,
                "Damaged cipher text: 3 bytes are not whole blocks of 16. The library gets them "
                "undecrypted.",
                ""},
        NoteRow{{"\xff", Padding::Removed, 16},
                true,
                "Wrong key or IV, or damaged cipher text: the clear text is not valid UTF-8.",
                "They are no text; shown in hexadecimal."}));

TEST(DecryptionNote, SuspectsThePassPhraseThatWasUsed)
{
    const Decryption wrong{"", Padding::Mismatched, 16};
    const LibraryAnswer answer{KeySource::PassPhrase, {}};
    EXPECT_TRUE(DecryptionNote(wrong, answer)
                    .outcome()
                    .startsWith("Wrong pass phrase, or damaged cipher text:"));
}

TEST(DecryptionNote, TellsThatTheExportedEntryHasAnsweredNull)
{
    const Decryption decryption{"text", Padding::Removed, 16};
    const LibraryAnswer given{KeySource::PassPhrase, "text"};
    const LibraryAnswer refused{KeySource::PassPhrase, "text", true};
    EXPECT_EQ(DecryptionNote(decryption, given).remarks(), "");
    EXPECT_EQ(DecryptionNote(decryption, refused).remarks(),
              "DecryptionAES_Export gives null: its result holds at most 2,047 bytes. This is what "
              "Encrypt::DecryptionAES gives.");
}

TEST(EncryptionNote, TellsWhatCannotBeReadBack)
{
    EXPECT_EQ(EncryptionNote::of("text", KeySource::PassPhrase), "");
    EXPECT_EQ(EncryptionNote::of(std::string("ab\0c", 4), KeySource::KeyAndIv),
              "The library encrypts everything from the first zero byte on (byte 3) as zeros: it "
              "cannot be read back.");
    const std::string longest(2047, 'x');
    EXPECT_EQ(EncryptionNote::of(longest, KeySource::PassPhrase), "");
    EXPECT_EQ(EncryptionNote::of(longest + "x", KeySource::KeyAndIv), "");
    EXPECT_EQ(EncryptionNote::of(longest + "x", KeySource::PassPhrase),
              "DecryptionAES_Export cannot give this text back: its result holds at most 2,047 "
              "bytes.");
}

} // namespace
