# Run as a script: cmake -D INPUT=file -D OUTPUT=file.cpp -D FUNCTION=name::space::Function -P EmbedText.cmake
#
# The text becomes an array of single bytes. String literals would need escapes, and are guaranteed for 65,536
# characters only.

string(REGEX MATCH "^(.*)::([^:]+)$" matched "${FUNCTION}")
set(space "${CMAKE_MATCH_1}")
set(function "${CMAKE_MATCH_2}")

file(READ "${INPUT}" bytes HEX)
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "'\\\\x\\1'," bytes "${bytes}")
string(REGEX REPLACE "(('[^']*',)('[^']*',)('[^']*',)('[^']*',)('[^']*',)('[^']*',)('[^']*',)('[^']*',))" "\\1\n"
       bytes "${bytes}")

# The closing zero keeps an empty file a legal array.
file(WRITE "${OUTPUT}" "#include <string_view>

namespace ${space} {

std::string_view ${function}();

namespace {
constexpr char Text[] = {
${bytes}'\\0'};
}

std::string_view ${function}() { return {Text, sizeof(Text) - 1}; }

}
")
