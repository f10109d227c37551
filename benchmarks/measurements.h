// What is measured, by subject.
#pragma once

#include "benchmarks/figures.h"

class NumberedStream;

/// Search answers into rows, the text filter over them, and the device tree.
[[nodiscard]] QList<Figure> measureDeviceLists();

/// Device lists as files, workbooks against another library for them.
[[nodiscard]] QList<Figure> measureDeviceFiles();

/// Commands to a web server against another client of the same library.
[[nodiscard]] Figure measureCgiRequests();

/// Live pictures on the screen, and what 100 live views leave behind.
[[nodiscard]] QList<Figure> measureLiveView();

/// A live stream of a device over RTSP, against the decoder's own program.
[[nodiscard]] QList<Figure> measureRtspStream();

/// A search of a site of 200 devices on real sockets, until all of them are rows.
[[nodiscard]] QList<Figure> measureDiscovery();

/// A command to many devices at once, against the same to one after another.
[[nodiscard]] QList<Figure> measureBatches();

/// The window while batches of each kind run on 200 devices.
[[nodiscard]] QList<Figure> measureBatchFrames();

/// Live streams into pictures, against the decoder's own program on one thread.
[[nodiscard]] QList<Figure> measureDecoding();

/// Nine live streams at the pace of their cameras: how late their pictures are where they are decoded.
[[nodiscard]] QList<Figure> measureLivePorts(const NumberedStream &stream);

/// The same on the screen.
[[nodiscard]] QList<Figure> measureLiveWindow(const NumberedStream &stream);

/// Start of the program against an empty window of the toolkit.
[[nodiscard]] Figure measureStart();

/// The page of devices with 10,000 rows.
[[nodiscard]] Figure measureDevicePage();

/// The values of the whole encode page from what was read of a device, without the library's calls.
[[nodiscard]] Figure measureEncodePage();

/// The window and its memory while a search is answered by more devices than there can be.
[[nodiscard]] QList<Figure> measureFlood();

/// Resident memory of a process in megabytes.
[[nodiscard]] double residentMegabytes(qint64 process);

/// The memory of the program with 10,000 rows.
[[nodiscard]] Figure measureMemory();
