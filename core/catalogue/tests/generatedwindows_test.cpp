// Generated windows of every widget kind, saved and saved again after loading, compared with the
// bytes recorded in reference/generated.sha256 ("SHA-256  what" lines): the saving and loading
// paths may be reworked for speed, never change a byte. After a deliberate change of the saved
// bytes, record the digests from this test's output again.

#include "tests/support/demowindows.h"
#include "tests/support/registryscope.h"
#include "tests/support/tempdir.h"

#include <QCryptographicHash>

#include <gtest/gtest.h>

#include <fstream>
#include <map>

namespace {

std::string Sha256(const std::string& bytes)
{
    return QCryptographicHash::hash(QByteArrayView(bytes.data(), qsizetype(bytes.size())), QCryptographicHash::Sha256)
        .toHex()
        .toStdString();
}

} // namespace

TEST(GeneratedWindows, SaveAndSaveAgainAfterLoadingToTheRecordedBytes)
{
    std::map<std::string, std::string> recorded;
    std::ifstream manifest(KELVO_TEST_DATA_DIR "/generated.sha256");
    for (std::string digest, what; manifest >> digest >> what;)
        recorded[what] = digest;
    ASSERT_EQ(recorded.size(), 4u);

    const CRegistryScope registry;
    const CGeneratedWindows windows(KELVO_DEMO_DIR);
    ASSERT_TRUE(windows.IsValid());
    for (const int count : {40, 400}) {
        CTamloDoc generated;
        windows.Fill(generated, count);
        const std::string saved = generated.Serialize();
        EXPECT_EQ(Sha256(saved), recorded["saved-" + std::to_string(count)]) << count << " widgets";

        const TempDir dir;
        CTamloDoc loaded;
        ASSERT_TRUE(loaded.Load(dir.Write("window.xml", saved)));
        std::string savedAgain;
        ASSERT_TRUE(loaded.SerializeChecked(savedAgain));
        EXPECT_EQ(Sha256(savedAgain), recorded["reloaded-" + std::to_string(count)]) << count << " widgets";
    }
}
