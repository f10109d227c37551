// The interfaces of the configuration library, the decoder library and the port agent, implemented by the C
// functions of closed libraries.
//
// Each operation calls the C function of the same name on the calling thread, with its parameters translated
// as entrypoints.h states: for instance a reference to a pointer, a bool to an integer. Nothing is added:
// the closed library must meet the contract of the interface (threads, failures, lifetimes). The constructors
// copy the entries. All pointers must be set, and the library must stay loaded while the object is used.
#pragma once

#include "sdk/binding/entrypoints.h"
#include "sdk/configlibrary.h"

namespace sdk::binding {

class BoundConfigLibrary : public ConfigLibrary
{
public:
    explicit BoundConfigLibrary(const ConfigurationEntryPoints &entries) : m_entries(entries) {}

    bool ConfigParseData(std::string_view name, std::string_view text, void *record, std::uint32_t recordSize,
                         std::uint32_t &returnedSize) override;
    bool ConfigPackData(std::string_view name, const void *record, std::uint32_t recordSize, char *text,
                        std::uint32_t textSize) override;

private:
    const ConfigurationEntryPoints m_entries;
};

class BoundDecoderLibrary : public DecoderLibrary
{
public:
    explicit BoundDecoderLibrary(const DecoderEntryPoints &entries) : m_entries(entries) {}

    bool DecoderAllocPort(std::int32_t &port) override;
    bool DecoderSetStreamMode(std::int32_t port, std::uint32_t mode) override;
    bool DecoderOpenStream(std::int32_t port, const std::uint8_t *header, std::uint32_t headerSize,
                           std::uint32_t bufferSize) override;
    bool DecoderSetDecodeCallback(std::int32_t port, DecodeHandler handler, void *user) override;
    bool DecoderPlay(std::int32_t port, std::uintptr_t window) override;
    bool DecoderInputData(std::int32_t port, const std::uint8_t *data, std::uint32_t size) override;
    bool DecoderStop(std::int32_t port) override;
    bool DecoderCloseStream(std::int32_t port) override;
    bool DecoderFreePort(std::int32_t port) override;
    bool DecoderGetStatus(std::int32_t port, DecoderStatus &status) override;
    bool DecoderSaveFrame(const std::uint8_t *frame, std::int32_t width, std::int32_t height,
                          SavedImageType type, std::int32_t quality, const char *fileName,
                          FrameColour colour) override;

private:
    const DecoderEntryPoints m_entries;
};

class BoundP2PAgentLibrary : public P2PAgentLibrary
{
public:
    explicit BoundP2PAgentLibrary(const AgentEntryPoints &entries) : m_entries(entries) {}

    bool OAgent_ClientInit(const P2PAgentServices &services) override;
    void OAgent_SetMessageCallback(P2PAgentMessageHandler handler, void *user) override;
    bool OAgent_ClientGetDeviceLocalPort(const char *deviceId, std::int32_t devicePort,
                                         std::int32_t *localPorts, std::int32_t capacity,
                                         std::int32_t &count) override;
    bool OAgent_ClientAddPort(const char *deviceId, std::int32_t devicePort, std::int32_t &localPort,
                              std::int32_t flag) override;
    bool OAgent_ClientDelPort(std::int32_t localPort) override;
    void OAgent_ClientRelease() override;

private:
    const AgentEntryPoints m_entries;
};

} // namespace sdk::binding
