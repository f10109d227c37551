#include "benchmarks/teststream.h"

#include <QProcess>

bool createTestStream(const QString &path, int frames)
{
    constexpr int patience = 120000;
    QProcess maker;
    maker.start(QStringLiteral("ffmpeg"), {QStringLiteral("-v"),
                                           QStringLiteral("error"),
                                           QStringLiteral("-f"),
                                           QStringLiteral("lavfi"),
                                           QStringLiteral("-i"),
                                           QStringLiteral("testsrc2=size=1920x1080:rate=25"),
                                           QStringLiteral("-frames:v"),
                                           QString::number(frames),
                                           QStringLiteral("-c:v"),
                                           QStringLiteral("libx264"),
                                           QStringLiteral("-preset"),
                                           QStringLiteral("veryfast"),
                                           QStringLiteral("-tune"),
                                           QStringLiteral("zerolatency"),
                                           QStringLiteral("-g"),
                                           QStringLiteral("50"),
                                           QStringLiteral("-b:v"),
                                           QStringLiteral("4M"),
                                           QStringLiteral("-f"),
                                           QStringLiteral("matroska"),
                                           QStringLiteral("-live"),
                                           QStringLiteral("1"),
                                           path});
    return maker.waitForFinished(patience) && maker.exitCode() == 0;
}
