# The build tree stages an installation, so that a program of it finds home, jar and VM as an
# installed federate would:
#
#    home/versioninfo.txt
#    home/lib/<toolchain>/   the libraries
#    home/lib/tarn1516e.jar  the stand-in's
#    home/jre                a link to the JDK

string(TOLOWER "${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}-${CMAKE_CXX_COMPILER_ID}" TOOLCHAIN)
set(TARN_TOOLCHAIN ${TOOLCHAIN} CACHE STRING "Name of the libraries' folder below lib")
set(STAGED_HOME ${PROJECT_BINARY_DIR}/home)

file(WRITE ${PROJECT_BINARY_DIR}/versioninfo.txt "librti1516e ${PROJECT_VERSION}\n")
file(COPY ${PROJECT_BINARY_DIR}/versioninfo.txt DESTINATION ${STAGED_HOME})
file(CREATE_LINK ${JDK_HOME} ${STAGED_HOME}/jre SYMBOLIC)

function(tarn_place_in_home target)
   set_target_properties(${target} PROPERTIES
      LIBRARY_OUTPUT_DIRECTORY ${STAGED_HOME}/lib/${TARN_TOOLCHAIN})
   # The two libraries find each other where they lie side by side.
   if(APPLE)
      set_target_properties(${target} PROPERTIES BUILD_RPATH "@loader_path"
         INSTALL_RPATH "@loader_path" BUILD_WITH_INSTALL_RPATH ON)
      # Each has symbols that the other one holds.
      target_link_options(${target} PRIVATE -undefined dynamic_lookup)
   else()
      set_target_properties(${target} PROPERTIES
         INSTALL_RPATH "$ORIGIN" BUILD_WITH_INSTALL_RPATH ON)
   endif()
endfunction()
