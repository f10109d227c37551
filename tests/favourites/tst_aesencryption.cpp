#include "favourites/aesencryption.h"
#include "tests/datatable.h"

namespace {

QByteArray bytes(const char *hex)
{
    return QByteArray::fromHex(hex);
}

} // namespace

class TestAESEncryption : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    /// ECB is tested with single blocks; the other modes chain several.
    void ciphersPublishedVectors_data()
    {
        const auto row =
            dataTable<AESEncryption::Level, AESEncryption::Mode, QByteArray, QByteArray, QByteArray>(
                {"level", "mode", "key", "text", "cipherText"});

        const auto single = [&row](const char *name, AESEncryption::Level level, const char *key,
                                   const char *text, const char *cipherText) {
            row(name, level, AESEncryption::ECB, bytes(key), bytes(text), bytes(cipherText));
        };
        const char *counting = "00112233445566778899aabbccddeeff";
        single("FIPS-197 C.1", AESEncryption::AES128, "000102030405060708090a0b0c0d0e0f", counting,
               "69c4e0d86a7b0430d8cdb78070b4c55a");
        single("FIPS-197 C.2", AESEncryption::AES192, "000102030405060708090a0b0c0d0e0f1011121314151617",
               counting, "dda97ca4864cdfe06eaf70a0ec0d7191");
        single("FIPS-197 C.3", AESEncryption::AES256,
               "000102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f", counting,
               "8ea2b7ca516745bfeafc49904b496089");

        const QByteArray text = bytes("6bc1bee22e409f96e93d7e117393172aae2d8a571e03ac9c9eb76fac45af8e51"
                                      "30c81c46a35ce411e5fbc1191a0a52eff69f2445df4f9b17ad2b417be66c3710");
        row("SP 800-38A CBC AES-256", AESEncryption::AES256, AESEncryption::CBC,
            bytes("603deb1015ca71be2b73aef0857d77811f352c073b6108d72d9810a30914dff4"), text,
            bytes("f58c4c04d6e5f1ba779eabfb5f7bfbd69cfc4e967edb808d679f777bc6702c7d"
                  "39f23369a9d9bacfa530e26304231461b2eb05e2c39be9fcda6c19078c6a9d1b"));
        row("SP 800-38A CFB128 AES-128", AESEncryption::AES128, AESEncryption::CFB,
            bytes("2b7e151628aed2a6abf7158809cf4f3c"), text,
            bytes("3b3fd92eb72dad20333449f8e83cfb4ac8a64537a0b3a93fcde3cdad9f1ce58b"
                  "26751f67a3cbb140b1808cf187a4f4dfc04b05357c5d1c0eeac4c66f9ff7f2e6"));
        row("SP 800-38A OFB AES-192", AESEncryption::AES192, AESEncryption::OFB,
            bytes("8e73b0f7da0e6452c810f32b809079e562f8ead2522c6b7b"), text,
            bytes("cdc80d6fddf18cab34c25909c99a4174fcc28b8d4c63837c09e81700c1100401"
                  "8d9a9aeac0f6596f559c6d4daf59a5f26d9f200857ca6c3e9cac524bd9acc92a"));
    }

    void ciphersPublishedVectors()
    {
        QFETCH(AESEncryption::Level, level);
        QFETCH(AESEncryption::Mode, mode);
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, cipherText);
        const AESEncryption cipher(level, mode, AESEncryption::ZERO); // adds nothing to complete blocks
        const QByteArray iv = bytes("000102030405060708090a0b0c0d0e0f");
        QCOMPARE(cipher.encode(text, key, iv).toHex(), cipherText.toHex());
        QCOMPARE(cipher.decode(cipherText, key, iv).toHex(), text.toHex());
    }

    void padsAndRemovesPadding_data()
    {
        const auto addRow =
            dataTable<AESEncryption::Padding, int, QByteArray>({"padding", "length", "added"});
        const auto row = [&addRow](AESEncryption::Padding padding, int length, const QByteArray &added) {
            addRow(qPrintable(QString("padding %1 of %2 bytes").arg(padding).arg(length)), padding, length,
                   added);
        };
        row(AESEncryption::ZERO, 0, "");
        row(AESEncryption::ZERO, 1, QByteArray(15, '\0'));
        row(AESEncryption::ZERO, 16, "");
        row(AESEncryption::PKCS7, 0, QByteArray(16, '\x10'));
        row(AESEncryption::PKCS7, 1, QByteArray(15, '\x0f'));
        row(AESEncryption::PKCS7, 15, QByteArray(1, '\x01'));
        row(AESEncryption::PKCS7, 16, QByteArray(16, '\x10'));
        row(AESEncryption::ISO, 0, bytes("80") + QByteArray(15, '\0'));
        row(AESEncryption::ISO, 15, bytes("80"));
        row(AESEncryption::ISO, 16, bytes("80") + QByteArray(15, '\0'));
    }

    void padsAndRemovesPadding()
    {
        QFETCH(AESEncryption::Padding, padding);
        QFETCH(int, length);
        QFETCH(QByteArray, added);
        // Ends with the mark of ISO padding, which is also a possible count of PKCS7.
        const QByteArray text = QByteArray(length, '\x80');
        const QByteArray key(16, 'k');
        const QByteArray iv(16, 'i');
        for (const auto mode :
             {AESEncryption::ECB, AESEncryption::CBC, AESEncryption::CFB, AESEncryption::OFB}) {
            const AESEncryption cipher(AESEncryption::AES128, mode, padding);
            const QByteArray decoded = cipher.decode(cipher.encode(text, key, iv), key, iv);
            QCOMPARE(decoded.toHex(), (text + added).toHex());
            QCOMPARE(cipher.removePadding(decoded).toHex(), text.toHex());
        }
    }

    void removesBytesThatLookLikePadding_data()
    {
        const auto row =
            dataTable<AESEncryption::Padding, QByteArray, QByteArray>({"padding", "text", "rest"});
        row("PKCS#7, count 0", AESEncryption::PKCS7, bytes("616200"), bytes("616200"));
        row("PKCS#7, other bytes before", AESEncryption::PKCS7, bytes("616203"), QByteArray());
        row("ISO, no mark", AESEncryption::ISO, bytes("616200"), bytes("616200"));
        row("ISO, data after the mark", AESEncryption::ISO, bytes("61806280ff"), bytes("618062"));
    }

    void removesBytesThatLookLikePadding()
    {
        QFETCH(AESEncryption::Padding, padding);
        QFETCH(QByteArray, text);
        const AESEncryption cipher(AESEncryption::AES128, AESEncryption::ECB, padding);
        QTEST(cipher.removePadding(text), "rest");
    }

    void refusesAWrongKeyOrVector_data()
    {
        const auto row = dataTable<AESEncryption::Level, AESEncryption::Mode, int, int, bool>(
            {"level", "mode", "keyLength", "ivLength", "accepted"});
        row("key of another level", AESEncryption::AES128, AESEncryption::ECB, 32, 16, false);
        row("ECB, no vector", AESEncryption::AES192, AESEncryption::ECB, 24, 0, true);
        row("CFB, short vector", AESEncryption::AES128, AESEncryption::CFB, 16, 15, false);
        row("OFB, long vector", AESEncryption::AES128, AESEncryption::OFB, 16, 17, false);
    }

    void refusesAWrongKeyOrVector()
    {
        QFETCH(AESEncryption::Level, level);
        QFETCH(AESEncryption::Mode, mode);
        QFETCH(int, keyLength);
        QFETCH(int, ivLength);
        QFETCH(bool, accepted);
        const AESEncryption cipher(level, mode, AESEncryption::PKCS7);
        const QByteArray key(keyLength, 'k');
        const QByteArray iv(ivLength, 'i');
        QCOMPARE(cipher.encode("text", key, iv).size(), accepted ? 16 : 0);
        QCOMPARE(cipher.decode(QByteArray(32, 'c'), key, iv).size(), accepted ? 32 : 0);
        for (const int length : {0, 1, 15, 17}) // not complete blocks
            QCOMPARE(cipher.decode(QByteArray(length, 'c'), key, iv), QByteArray());
    }
};

QTEST_APPLESS_MAIN(TestAESEncryption)
#include "tst_aesencryption.moc"
