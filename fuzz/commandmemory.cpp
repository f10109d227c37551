#include "cgi/commandmemory.h"
#include "fuzz/input.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::disableLogging();
    const fuzz::InputFile file(QStringLiteral("cgicommands.json"), fuzz::bytesOf(data, size));
    CommandMemory memory(file.path());
    if (memory.recent().isEmpty() && memory.favourites().isEmpty())
        return 0; // writing the file takes much longer than reading it
    memory.setFavourite(QStringLiteral("/cgi-bin/kept"), true);
    memory.remember(QStringLiteral("/cgi-bin/sent"));
    if (memory.recent().size() > CommandMemory::mostRecent ||
        memory.favourites().size() > CommandMemory::mostFavourites) {
        qFatal("more commands than the limit");
    }
    for (const QString &command : memory.recent() + memory.favourites()) {
        if (command.size() > CommandMemory::longestCommand)
            qFatal("a command that is too long");
    }
    const CommandMemory again(file.path());
    if (again.recent() != memory.recent() || again.favourites() != memory.favourites())
        qFatal("the written commands differ from the read ones");
    return 0;
}
