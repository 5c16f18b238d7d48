# Turns the code list of platform/data/a65-huffman.txt into a C++ array of
# {table, context, symbol, "bits"} rows, included by DtvHuffman.cpp.
# Run as: cmake -DINPUT=<code list> -DOUTPUT=<file> -P HuffmanTable.cmake
file(STRINGS "${INPUT}" lines REGEX "^[12] [0-9A-Fa-f][0-9A-Fa-f] [0-9A-Fa-f][0-9A-Fa-f] [01]+$")
list(LENGTH lines count)
if(count EQUAL 0)
  message(FATAL_ERROR "no codes in ${INPUT}")
endif()
set(rows "")
foreach(line IN LISTS lines)
  string(REPLACE " " ";" fields "${line}")
  list(GET fields 0 table)
  list(GET fields 1 context)
  list(GET fields 2 symbol)
  list(GET fields 3 bits)
  string(APPEND rows "    {${table}, 0x${context}, 0x${symbol}, \"${bits}\"},\n")
endforeach()
file(WRITE "${OUTPUT}"
  "// Generated from a65-huffman.txt at build time; do not edit.\n"
  "// ${count} codes.\n${rows}")
