// The measurements. main.cpp maps subjects to them. Each function runs for seconds to minutes on the main
// thread and requires the application object.
#pragma once

#include "benchmarks/benchmarkresult.h"

class NumberedStream;

/// Search responses to rows, the text filter over them, and the device tree.
[[nodiscard]] QList<BenchmarkResult> measureDeviceLists();

/// Export, change and import of device lists. Workbooks are compared with another library.
[[nodiscard]] QList<BenchmarkResult> measureDeviceFiles();

/// CGI commands to a web server, compared with curl, which uses the same library.
[[nodiscard]] BenchmarkResult measureCgiRequests();

/// Live video on the screen, and the growth of memory after live views were closed.
[[nodiscard]] QList<BenchmarkResult> measureLiveView();

/// A live stream of a device over RTSP, compared with ffmpeg.
[[nodiscard]] QList<BenchmarkResult> measureRtspStream();

/// The time of a search until all 200 devices of a site on real sockets are listed.
[[nodiscard]] QList<BenchmarkResult> measureDiscovery();

/// A command to many devices in parallel, compared with one after another.
[[nodiscard]] QList<BenchmarkResult> measureBatches();

/// The frame times of the window while batches of each kind run on 200 devices.
[[nodiscard]] QList<BenchmarkResult> measureBatchFrames();

/// Decoding of a live stream, compared with ffmpeg on one thread.
[[nodiscard]] QList<BenchmarkResult> measureDecoding();

/// Nine live streams in real time: the delay of their decoded frames. `stream` is valid.
[[nodiscard]] QList<BenchmarkResult> measureLivePorts(const NumberedStream &stream);

/// Nine live streams in real time: the delay of their frames on the screen. `stream` is valid.
[[nodiscard]] QList<BenchmarkResult> measureLiveWindow(const NumberedStream &stream);

/// The start of the application, compared with an empty window of Qt.
[[nodiscard]] BenchmarkResult measureStart();

/// The refresh of the device page with 10,000 rows.
[[nodiscard]] BenchmarkResult measureDevicePage();

/// Reading all values of the encode page from the settings of a session, without calls of the library.
[[nodiscard]] BenchmarkResult measureEncodePage();

/// The window and its memory while a search receives more responses than a real network can send.
[[nodiscard]] QList<BenchmarkResult> measureFlood();

/// The resident memory of the process with this ID in megabytes, including free memory of its allocator. Not
/// a measurement: used by several of them.
[[nodiscard]] double residentMegabytes(qint64 process);

/// The memory of the application with 10,000 rows.
[[nodiscard]] BenchmarkResult measureMemory();
