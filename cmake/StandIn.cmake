# The stand-in's jar, in the staged home where the RTI's would lie.

file(GLOB_RECURSE STAND_IN_SOURCES CONFIGURE_DEPENDS
   ${PROJECT_SOURCE_DIR}/standin/java/*.java ${PROJECT_SOURCE_DIR}/standin/generated/*.java)
set(STAND_IN_JAR ${STAGED_HOME}/lib/tarn1516e.jar)
set(STAND_IN_CLASSES ${PROJECT_BINARY_DIR}/standin-classes)
string(REPLACE ";" "\n" STAND_IN_LIST "${STAND_IN_SOURCES}")
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/standin-manifest.txt CONTENT
   "Implementation-Title: tarn1516e stand-in\nImplementation-Version: ${PROJECT_VERSION}\n")
file(GENERATE OUTPUT ${PROJECT_BINARY_DIR}/standin-sources.txt CONTENT "${STAND_IN_LIST}\n")

# Nothing of it is ever serialised, of which later compilers warn where a collection is derived from.
set(STAND_IN_FLAGS --release 8 -Xlint:all,-options,-serial $<$<BOOL:${TARN_WERROR}>:-Werror>
   -encoding UTF-8)
add_custom_command(OUTPUT ${STAND_IN_JAR}
   COMMAND ${CMAKE_COMMAND} -E rm -rf ${STAND_IN_CLASSES}
   COMMAND ${JAVAC} ${STAND_IN_FLAGS}
      -d ${STAND_IN_CLASSES} @${PROJECT_BINARY_DIR}/standin-sources.txt
   COMMAND ${CMAKE_COMMAND} -E make_directory ${STAGED_HOME}/lib
   COMMAND ${JAR} cfm ${STAND_IN_JAR} ${PROJECT_BINARY_DIR}/standin-manifest.txt
      -C ${STAND_IN_CLASSES} .
   DEPENDS ${STAND_IN_SOURCES}
   COMMENT "Building the stand-in's tarn1516e.jar"
   COMMAND_EXPAND_LISTS VERBATIM)
add_custom_target(stand-in ALL DEPENDS ${STAND_IN_JAR})
