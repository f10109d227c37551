// Frames saved as image files.
#include "sdk/ffmpeg/ffmpegdecoderlibrary.h"
#include "tests/datatable.h"
#include "tests/files/filecontents.h"
#include "tests/files/filesizelimit.h"

#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace sdk;
using namespace sdk::ffmpeg;

Q_DECLARE_METATYPE(FrameColour)

namespace {

/// A frame of two colours, left and right.
QByteArray twoColours(int width, int height, std::array<int, 3> left, std::array<int, 3> right)
{
    QByteArray bytes;
    for (std::size_t plane = 0; plane < 3; ++plane) {
        const int wide = plane == 0 ? width : (width + 1) / 2;
        const int high = plane == 0 ? height : (height + 1) / 2;
        for (int y = 0; y < high; ++y) {
            for (int x = 0; x < wide; ++x)
                bytes.append(static_cast<char>(x * 2 < wide ? left.at(plane) : right.at(plane)));
        }
    }
    return bytes;
}

bool save(const QByteArray &frame, int width, int height, const QString &path, int quality = 50,
          FrameColour colour = FrameColour::Bt601Limited)
{
    FfmpegDecoderLibrary library;
    return library.DecoderSaveFrame(reinterpret_cast<const std::uint8_t *>(frame.constData()), width, height,
                                    SavedImageType::Jpeg, quality, QFile::encodeName(path).constData(),
                                    colour);
}

bool isNear(QRgb value, QRgb wanted, int tolerance = 10)
{
    return std::abs(qRed(value) - qRed(wanted)) < tolerance &&
           std::abs(qGreen(value) - qGreen(wanted)) < tolerance &&
           std::abs(qBlue(value) - qBlue(wanted)) < tolerance;
}

} // namespace

class SavedFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savesTheColours_data()
    {
        // red: as Y, U and V
        // greys: as Y: the values that are shown as 14, 64 and 237
        const auto row = dataTable<int, int, FrameColour, QList<int>, QList<int>>(
            {"width", "height", "colour", "red", "greys"});
        const QList<int> limited = {28, 71, 220};
        const QList<int> full = {14, 64, 237};
        const QList<int> red601 = {82, 90, 240};
        const QList<int> red709 = {63, 102, 240};
        row("small", 64, 36, FrameColour::Bt601Limited, red601, limited);
        row("odd", 67, 33, FrameColour::Bt601Limited, red601, limited);
        row("one pixel", 1, 1, FrameColour::Bt601Limited, red601, limited);
        row("small, BT.709", 64, 36, FrameColour::Bt709Limited, red709, limited);
        row("1080 lines", 1920, 1080, FrameColour::Bt709Limited, red709, limited);
        row("1080 lines, BT.601", 1920, 1080, FrameColour::Bt601Limited, red601, limited);
        row("full", 64, 36, FrameColour::Bt601Full, QList<int>{76, 85, 255}, full);
        row("1080 lines, full", 1920, 1080, FrameColour::Bt709Full, QList<int>{54, 99, 255}, full);
    }

    void savesTheColours()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(FrameColour, colour);
        QFETCH(QList<int>, red);
        QFETCH(QList<int>, greys);
        constexpr std::array shown = {14, 64, 237};
        for (std::size_t index = 0; index < shown.size(); ++index) {
            const int grey = greys.at(static_cast<qsizetype>(index));
            const QByteArray frame = twoColours(width, height, {red[0], red[1], red[2]}, {grey, 128, 128});
            const QString path = m_folder.filePath(QStringLiteral("图 1.jpg"));
            QVERIFY(save(frame, width, height, path, 50, colour));
            const QImage image(path, "JPG");
            QCOMPARE(image.size(), QSize(width, height));
            QVERIFY(isNear(image.pixel(width / 4, height / 2), qRgb(254, 0, 0)));
            const int level = shown.at(index);
            if (width > 1)
                QVERIFY(isNear(image.pixel(width - 1 - width / 4, height - 1), qRgb(level, level, level), 4));
        }
    }

    void refusesInvalidFrames()
    {
        FfmpegDecoderLibrary library;
        const QByteArray frame(200, '\0');
        const auto *bytes = reinterpret_cast<const std::uint8_t *>(frame.constData());
        const QByteArray name = QFile::encodeName(m_folder.filePath(QStringLiteral("refused.jpg")));
        const auto isSaved = [&](const std::uint8_t *data, int width, int height, int quality = 50,
                                 SavedImageType type = SavedImageType::Jpeg) {
            return library.DecoderSaveFrame(data, width, height, type, quality, name.constData(), {});
        };
        QVERIFY(!isSaved(nullptr, 8, 8));
        QVERIFY(!isSaved(bytes, 0, 8));
        QVERIFY(!isSaved(bytes, 8, -1)); // as before the first frame
        QVERIFY(!isSaved(bytes, 2000000000, 2000000000));
        QVERIFY(!isSaved(bytes, 8, 8, 50, static_cast<SavedImageType>(2)));
        QVERIFY(!isSaved(bytes, 8, 8, 0));
        QVERIFY(!isSaved(bytes, 8, 8, 101));
        QVERIFY(!library.DecoderSaveFrame(bytes, 8, 8, SavedImageType::Jpeg, 50, nullptr, {}));
        QVERIFY(!QFile::exists(QFile::decodeName(name)));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot write the image")));
        QVERIFY(!save(frame, 8, 8, m_folder.filePath(QStringLiteral("no folder/a.jpg"))));
    }

    void replacesAFileCompletelyOrNotAtAll()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("0.jpg"));
        const QByteArray first = twoColours(64, 36, {60, 100, 200}, {200, 140, 90});
        const QByteArray second = twoColours(640, 360, {90, 200, 100}, {30, 90, 200});
        QVERIFY(save(first, 64, 36, path));
        QVERIFY(save(second, 640, 360, path));
        const QByteArray written = fileContents(path);
        QCOMPARE(QImage::fromData(written).size(), QSize(640, 360));

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot write the image")));
        bool saved = true;
        {
            const FileSizeLimit limit(100);
            saved = save(first, 64, 36, path);
        }
        QVERIFY(!saved);
        QCOMPARE(fileContents(path), written);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList{QStringLiteral("0.jpg")});
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(SavedFrameTest)

#include "tst_savedframe.moc"
