# Updates a copy of the translation from the sources and reports missing strings.
configure_file(${TRANSLATION} ${WORK} COPYONLY)
execute_process(
    COMMAND ${LUPDATE} -silent -locations none -extensions cpp,h,qml
        ${SOURCES}/app ${SOURCES}/cgi ${SOURCES}/device ${SOURCES}/favourites ${SOURCES}/gallery ${SOURCES}/media ${SOURCES}/qml ${SOURCES}/sdk -ts ${WORK}
    COMMAND_ERROR_IS_FATAL ANY)

file(READ ${WORK} updated)
string(REGEX MATCHALL "<message[^>]*>" messages "${updated}")
list(LENGTH messages count)
if(count LESS 100)
    message(FATAL_ERROR "Only ${count} strings found: lupdate has not read the sources")
endif()

# Converts each message to a list item, so that it can be matched separately. Characters that would split or join
# list items are replaced.
string(REPLACE ";" "," flat "${updated}")
string(REGEX REPLACE "[][\\]" "_" flat "${flat}")
string(REPLACE "</message>" ";" flat "${flat}")
set(faults 0)
foreach(message IN LISTS flat)
    if(NOT message MATCHES "<source>(.*)</source>")
        continue()
    endif()
    set(source "${CMAKE_MATCH_1}")
    set(fault "")
    if(message MATCHES "type=\"(unfinished|vanished|obsolete)\"")
        set(fault ${CMAKE_MATCH_1})
    elseif(message MATCHES "<(translation|numerusform)>[ \n]*</(translation|numerusform)>"
           OR message MATCHES "<(translation|numerusform)/>")
        set(fault "empty")
    else()
        # A translation must contain the placeholders of its source string.
        string(REGEX MATCH "<translation.*" translation "${message}")
        string(REGEX MATCHALL "%[0-9n]" places "${source}")
        foreach(place IN LISTS places)
            string(FIND "${translation}" "${place}" position)
            if(position EQUAL -1)
                set(fault "without ${place}")
            endif()
        endforeach()
    endif()
    if(fault)
        message("${fault}: ${source}")
        math(EXPR faults "${faults} + 1")
    endif()
endforeach()
if(faults GREATER 0)
    message(FATAL_ERROR "${faults} strings are not translated: build the target update_translations and fill in the translations")
endif()
message("${count} strings, all translated")
