// The measurements, without the names of the subjects that run them. Each function blocks for seconds to
// minutes on the main thread and requires the application object. It returns lines of the table. If a program
// that it needs is missing on this host, the list is empty, the value is 0, or there is no peer.
#pragma once

#include "benchmarks/benchmarkresult.h"

class NumberedStream;

/// With 10,000 devices: search responses to rows, the text filter over them, the device tree, changes of
/// rows.
[[nodiscard]] QList<BenchmarkResult> measureDeviceLists();

/// Export of 10,000 devices to a workbook, change of that workbook, import of 1,000 devices. Workbooks are
/// compared with another library.
[[nodiscard]] QList<BenchmarkResult> measureDeviceFiles();

/// 200 CGI commands (HTTP commands) to a real web server, compared with the program curl, which uses the same
/// HTTP library.
[[nodiscard]] BenchmarkResult measureCgiRequests();

/// Live video on the screen: processor time of a frame, time to the first frame, and the growth of memory
/// after live views were closed.
[[nodiscard]] QList<BenchmarkResult> measureLiveView();

/// A live stream over RTSP: processor time, and time to the first frame. Compared with ffmpeg.
[[nodiscard]] QList<BenchmarkResult> measureRtspStream();

/// The time of a search until all 200 devices of a simulated site on real sockets are listed, compared with
/// their responses to a probe.
[[nodiscard]] QList<BenchmarkResult> measureDiscovery();

/// A command to 200 devices in parallel, compared with one after another, and the longest time that it blocks
/// the event loop.
[[nodiscard]] QList<BenchmarkResult> measureBatches();

/// The times between painted frames of the window while batches of each kind run on up to 200 devices,
/// compared with the same page without a batch.
[[nodiscard]] QList<BenchmarkResult> measureBatchFrames();

/// Decoding of a live stream, compared with ffmpeg on one thread. Empty if this host cannot create the
/// stream, as without ffmpeg.
[[nodiscard]] QList<BenchmarkResult> measureDecoding();

/// Nine copies of a live stream in real time: the delay of their decoded frames. `stream.isValid()` must be
/// true.
[[nodiscard]] QList<BenchmarkResult> measureLivePorts(const NumberedStream &stream);

/// Nine copies of a live stream in real time: the delay of their frames on the screen. `stream.isValid()`
/// must be true.
[[nodiscard]] QList<BenchmarkResult> measureLiveWindow(const NumberedStream &stream);

/// The time from the start of the application to its first painted frame, compared with an empty window of
/// Qt. Infinite, and so over the budget, if one of them paints no frame.
[[nodiscard]] BenchmarkResult measureStart();

/// The refresh of the device page with 10,000 rows, compared with Qt's table model.
[[nodiscard]] BenchmarkResult measureDevicePage();

/// Reading all values of the encode page from the settings of a session, without calls of the library.
[[nodiscard]] BenchmarkResult measureEncodePage();

/// The window and its memory while a search receives more responses than a real network can send.
[[nodiscard]] QList<BenchmarkResult> measureFlood();

/// The resident memory of the process with this ID in MiB, including free memory of its allocator; 0 if there
/// is no such process. Not a measurement: used by several of them.
[[nodiscard]] double residentMegabytes(qint64 process);

/// The memory of the application with 10,000 rows; 0 if it does not start.
[[nodiscard]] BenchmarkResult measureMemory();
