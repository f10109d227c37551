# Extracts the text of the four documents in DOCUMENTS. Without an embedded font or the characters of its glyphs, pages
# look correct but contain no searchable text.
cmake_minimum_required(VERSION 3.25)

# Name of the document, part of its title, and a text that its last lines must contain.
set(expected
    "manual_en_US|User manual|F5"
    "manual_zh_CN|用户手册|F5"
    "QA_en_US|Questions and answers|--demo"
    "QA_zh_CN|常见问题|--demo")

foreach(line IN LISTS expected)
    string(REPLACE "|" ";" parts "${line}")
    list(POP_FRONT parts name)
    set(document ${DOCUMENTS}/${name}.pdf)
    execute_process(COMMAND pdftotext -enc UTF-8 ${document} -
        OUTPUT_VARIABLE text ERROR_VARIABLE error RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(SEND_ERROR "${document} cannot be read: ${error}")
        continue()
    endif()
    foreach(part IN LISTS parts)
        string(FIND "${text}" "${part}" position)
        if(position EQUAL -1)
            message(SEND_ERROR "${document} does not contain the text \"${part}\"")
        endif()
    endforeach()
    if(NOT text MATCHES "1 ?/ ?[1-9]")
        message(SEND_ERROR "${document} has no page numbers")
    endif()
endforeach()
