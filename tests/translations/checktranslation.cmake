# Takes the texts of the sources into a copy of the translation and looks for those that it lacks.
configure_file(${TRANSLATION} ${WORK} COPYONLY)
execute_process(
    COMMAND ${LUPDATE} -silent -locations none -extensions cpp,h,qml
        ${SOURCES}/app ${SOURCES}/device ${SOURCES}/qml ${SOURCES}/sdk -ts ${WORK}
    COMMAND_ERROR_IS_FATAL ANY)

file(READ ${WORK} updated)
string(REGEX MATCHALL "<message[^>]*>" messages "${updated}")
list(LENGTH messages count)
if(count LESS 100)
    message(FATAL_ERROR "Only ${count} texts found: lupdate has not read the sources")
endif()

# One line a message, so that each can be matched alone.
string(REPLACE ";" "," flat "${updated}")
string(REPLACE "</message>" ";" flat "${flat}")
set(faults 0)
foreach(message IN LISTS flat)
    if(message MATCHES "type=\"(unfinished|vanished|obsolete)\"" OR message MATCHES "<translation></translation>"
       OR message MATCHES "<translation/>")
        set(kind ${CMAKE_MATCH_1})
        string(REGEX MATCH "<source>(.*)</source>" source "${message}")
        message("${kind}: ${CMAKE_MATCH_1}")
        math(EXPR faults "${faults} + 1")
    endif()
endforeach()
if(faults GREATER 0)
    message(FATAL_ERROR "${faults} texts to see to: build the target update_translations and translate them")
endif()
message("${count} texts, all translated")
