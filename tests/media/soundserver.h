// A sound server (PulseAudio) with one output, whose sound a test records.
#pragma once

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// Runs in separate processes until the object is destroyed, with its files in a temporary folder. Main
/// thread.
class SoundServer
{
public:
    static constexpr int rate = 48000; ///< samples per second

    ~SoundServer()
    {
        end(m_listener);
        end(m_server);
    }

    /// Starts the server and sets the environment of this process, so that Qt connects to it. Called before
    /// Qt uses sound. Blocks until it accepts connections. Returns false if it does not within 10 s.
    bool start()
    {
        const QString socket = m_directory.filePath("native");
        qputenv("XDG_RUNTIME_DIR", m_directory.path().toLocal8Bit());
        qputenv("HOME", m_directory.path().toLocal8Bit());
        qputenv("PULSE_SERVER", "unix:" + socket.toLocal8Bit());
        m_server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        // Without "norewinds" the sink runs at half its speed.
        m_server.start("pulseaudio",
                       {"-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
                        "--disable-shm=yes", "--realtime=no", "--high-priority=no", "--log-level=error",
                        "--load=module-null-sink " + sink,
                        "--load=module-native-protocol-unix socket=" + socket + " auth-anonymous=1"});
        // The socket's file exists before the server accepts connections, and Qt connects only once.
        return m_server.waitForStarted() && QTest::qWaitFor([&] { return control({"info"}); }, 10000);
    }

    /// Removes the output, as if the loudspeaker were unplugged. Returns false on failure.
    bool unplug() { return control({"unload-module", "module-null-sink"}); }
    /// Adds the output again. Returns false on failure.
    bool plug() { return control(QStringList{"load-module", "module-null-sink"} + sink.split(' ')); }

    /// Starts recording the output as one channel of signed 16-bit samples, little-endian. Earlier samples
    /// are dropped. Returns false if the recorder does not start.
    bool listen()
    {
        end(m_listener);
        m_heard.clear();
        m_listener.start("parec", {"--device=testsink.monitor", "--raw", "--format=s16le", "--channels=1",
                                   "--rate=" + QString::number(rate), "--latency-msec=50"});
        return m_listener.waitForStarted();
    }

    /// The bytes of the samples recorded since listen().
    QByteArray heard()
    {
        m_heard += m_listener.readAllStandardOutput();
        return m_heard;
    }

private:
    static bool control(const QStringList &arguments)
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start("pactl", arguments);
        return process.waitForFinished(10000) && process.exitStatus() == QProcess::NormalExit &&
               process.exitCode() == 0;
    }

    static void end(QProcess &process)
    {
        process.terminate();
        if (process.state() != QProcess::NotRunning && !process.waitForFinished(5000)) {
            process.kill();
            process.waitForFinished();
        }
    }

    const QString sink = "sink_name=testsink rate=48000 norewinds=1";
    QTemporaryDir m_directory;
    QProcess m_server;
    QProcess m_listener;
    QByteArray m_heard;
};
