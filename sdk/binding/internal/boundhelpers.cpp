#include "sdk/binding/internal/boundhelpers.h"

#include "sdk/binding/internal/cvalues.h"

#include <string>

namespace sdk::binding {

bool BoundConfigLibrary::ConfigParseData(std::string_view name, std::string_view text, void *record,
                                         std::uint32_t recordSize, std::uint32_t &returnedSize)
{
    return m_entries.ConfigParseData(std::string(name).c_str(), text.data(),
                                     static_cast<std::uint32_t>(text.size()), record, recordSize,
                                     &returnedSize) != 0;
}

bool BoundConfigLibrary::ConfigPackData(std::string_view name, const void *record, std::uint32_t recordSize,
                                        char *text, std::uint32_t textSize)
{
    return m_entries.ConfigPackData(std::string(name).c_str(), record, recordSize, text, textSize) != 0;
}

bool BoundDecoderLibrary::DecoderAllocPort(std::int32_t &port)
{
    return m_entries.DecoderAllocPort(&port) != 0;
}

bool BoundDecoderLibrary::DecoderSetStreamMode(std::int32_t port, std::uint32_t mode)
{
    return m_entries.DecoderSetStreamMode(port, mode) != 0;
}

bool BoundDecoderLibrary::DecoderOpenStream(std::int32_t port, const std::uint8_t *header,
                                            std::uint32_t headerSize, std::uint32_t bufferSize)
{
    return m_entries.DecoderOpenStream(port, header, headerSize, bufferSize) != 0;
}

bool BoundDecoderLibrary::DecoderSetDecodeCallback(std::int32_t port, DecodeHandler handler, void *user)
{
    return m_entries.DecoderSetDecodeCallback(port, handler, user) != 0;
}

bool BoundDecoderLibrary::DecoderPlay(std::int32_t port, std::uintptr_t window)
{
    return m_entries.DecoderPlay(port, window) != 0;
}

bool BoundDecoderLibrary::DecoderInputData(std::int32_t port, const std::uint8_t *data, std::uint32_t size)
{
    return m_entries.DecoderInputData(port, data, size) != 0;
}

bool BoundDecoderLibrary::DecoderStop(std::int32_t port)
{
    return m_entries.DecoderStop(port) != 0;
}

bool BoundDecoderLibrary::DecoderCloseStream(std::int32_t port)
{
    return m_entries.DecoderCloseStream(port) != 0;
}

bool BoundDecoderLibrary::DecoderFreePort(std::int32_t port)
{
    return m_entries.DecoderFreePort(port) != 0;
}

bool BoundDecoderLibrary::DecoderGetStatus(std::int32_t port, DecoderStatus &status)
{
    return m_entries.DecoderGetStatus(port, &status) != 0;
}

bool BoundDecoderLibrary::DecoderSaveFrame(const std::uint8_t *frame, std::int32_t width, std::int32_t height,
                                           SavedImageType type, std::int32_t quality, const char *fileName,
                                           FrameColour colour)
{
    return m_entries.DecoderSaveFrame(frame, width, height, cValue(type), quality, fileName,
                                      cValue(colour)) != 0;
}

bool BoundP2PAgentLibrary::OAgent_ClientInit(const P2PAgentServices &services)
{
    return m_entries.OAgent_ClientInit(&services) != 0;
}

void BoundP2PAgentLibrary::OAgent_SetMessageCallback(P2PAgentMessageHandler handler, void *user)
{
    m_entries.OAgent_SetMessageCallback(handler, user);
}

bool BoundP2PAgentLibrary::OAgent_ClientGetDeviceLocalPort(const char *deviceId, std::int32_t devicePort,
                                                           std::int32_t *localPorts, std::int32_t capacity,
                                                           std::int32_t &count)
{
    return m_entries.OAgent_ClientGetDeviceLocalPort(deviceId, devicePort, localPorts, capacity, &count) != 0;
}

bool BoundP2PAgentLibrary::OAgent_ClientAddPort(const char *deviceId, std::int32_t devicePort,
                                                std::int32_t &localPort, std::int32_t flag)
{
    return m_entries.OAgent_ClientAddPort(deviceId, devicePort, &localPort, flag) != 0;
}

bool BoundP2PAgentLibrary::OAgent_ClientDelPort(std::int32_t localPort)
{
    return m_entries.OAgent_ClientDelPort(localPort) != 0;
}

void BoundP2PAgentLibrary::OAgent_ClientRelease()
{
    m_entries.OAgent_ClientRelease();
}

} // namespace sdk::binding
