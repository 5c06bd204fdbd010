# Finds a JDK: JAVA_HOME if it is set, otherwise the one behind the javac on the path.
# Sets JDK_HOME, JDK_INCLUDE_DIRS, JAVAC and JAR. JDK_HOMES are all that lie beside it, this one
# first.

find_program(JAVAC javac HINTS ENV JAVA_HOME PATH_SUFFIXES bin)
if(NOT JAVAC)
   message(FATAL_ERROR "No JDK: neither JAVA_HOME nor the path leads to a javac.")
endif()
get_filename_component(JDK_HOME ${JAVAC} REALPATH)
get_filename_component(JDK_HOME ${JDK_HOME} DIRECTORY)
get_filename_component(JDK_HOME ${JDK_HOME} DIRECTORY)
find_program(JAR jar HINTS ${JDK_HOME}/bin NO_DEFAULT_PATH)

if(APPLE)
   set(JDK_INCLUDE_DIRS ${JDK_HOME}/include ${JDK_HOME}/include/darwin)
else()
   set(JDK_INCLUDE_DIRS ${JDK_HOME}/include ${JDK_HOME}/include/linux)
endif()
if(NOT EXISTS ${JDK_HOME}/include/jni.h)
   message(FATAL_ERROR "${JDK_HOME} has no include/jni.h; a JDK is needed, not only a runtime.")
endif()
message(STATUS "JDK: ${JDK_HOME}")

get_filename_component(JDKS ${JDK_HOME} DIRECTORY)
file(GLOB OTHER_VMS ${JDKS}/*/lib/server/libjvm${CMAKE_SHARED_LIBRARY_SUFFIX})
set(JDK_HOMES "")
foreach(VM ${JDK_HOME}/lib/server/libjvm${CMAKE_SHARED_LIBRARY_SUFFIX} ${OTHER_VMS})
   get_filename_component(VM ${VM} REALPATH)
   string(REGEX REPLACE "/lib/server/[^/]*$" "" HOME ${VM})
   list(APPEND JDK_HOMES ${HOME})
endforeach()
list(REMOVE_DUPLICATES JDK_HOMES)
