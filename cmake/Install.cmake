# What is installed. The result is a home that works from wherever it is moved to:
#
#    versioninfo.txt            marks it as a home
#    bin/tarn1516e-check        tells why a federate does not start
#    bin/tarn1516e-record       runs a federate and records what it does
#    share/man/                 their manual pages
#    include/                   the public headers
#    lib/<toolchain>/           the libraries
#    lib/cmake/, lib/pkgconfig/ what builds against them ask for
#    share/doc/tarn1516e/       the documents
#    share/tarn1516e/examples/  complete federates
#    jre                        on request, a link to a Java runtime
#
# The stand-in's jar is a component that only an install of its own brings, and lies where the
# library does not look: cmake --install <build> --component standin.

include(CMakePackageConfigHelpers)

option(TARN_INSTALL_JRE_LINK "Install jre as a link to a Java runtime" OFF)
set(TARN_JRE_LINK ${JDK_HOME} CACHE STRING "Where that link leads")

set(LIBRARY_DIR lib/${TARN_TOOLCHAIN})
set(PACKAGE_DIR lib/cmake/tarn1516e)

# ---- Run time

install(TARGETS rti1516e rti1516e-own-time fedtime1516e EXPORT tarn1516e
   LIBRARY DESTINATION ${LIBRARY_DIR} COMPONENT runtime NAMELINK_COMPONENT development)
install(FILES ${PROJECT_BINARY_DIR}/versioninfo.txt DESTINATION . COMPONENT runtime)
install(TARGETS tarn1516e-check EXPORT tarn1516e RUNTIME DESTINATION bin COMPONENT runtime)
install(FILES docs/tarn1516e-check.1 DESTINATION share/man/man1 COMPONENT runtime)
if(TARGET tarn1516e-record)
   install(TARGETS rti1516e-record LIBRARY DESTINATION ${LIBRARY_DIR} COMPONENT runtime)
   install(TARGETS tarn1516e-record RUNTIME DESTINATION bin COMPONENT runtime)
   install(FILES docs/tarn1516e-record.1 DESTINATION share/man/man1 COMPONENT runtime)
endif()
if(TARN_INSTALL_JRE_LINK)
   file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/install)
   file(CREATE_LINK ${TARN_JRE_LINK} ${PROJECT_BINARY_DIR}/install/jre SYMBOLIC)
   install(FILES ${PROJECT_BINARY_DIR}/install/jre DESTINATION . COMPONENT jre)
endif()
install(FILES ${STAND_IN_JAR} DESTINATION share/tarn1516e/standin
   COMPONENT standin EXCLUDE_FROM_ALL)

# ---- Building federates

install(DIRECTORY api/RTI api/tarn1516e DESTINATION include COMPONENT development
   FILES_MATCHING PATTERN *.h)
install(EXPORT tarn1516e NAMESPACE tarn1516e:: FILE tarn1516eTargets.cmake
   DESTINATION ${PACKAGE_DIR} COMPONENT development)
configure_package_config_file(cmake/tarn1516eConfig.cmake.in install/tarn1516eConfig.cmake
   INSTALL_DESTINATION ${PACKAGE_DIR} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/install/tarn1516eConfigVersion.cmake
   COMPATIBILITY SameMajorVersion)
install(FILES
   ${PROJECT_BINARY_DIR}/install/tarn1516eConfig.cmake
   ${PROJECT_BINARY_DIR}/install/tarn1516eConfigVersion.cmake
   DESTINATION ${PACKAGE_DIR} COMPONENT development)
# The time library first: it has a symbol of the other one's, and may be all that a program calls.
# It stays though a program calls nothing of it: so one of the federate's own, found first, is loaded.
set(PC_LIBS "-lfedtime1516e -lrti1516e")
if(NOT APPLE)
   set(PC_LIBS "-Wl,--push-state,--no-as-needed ${PC_LIBS} -Wl,--pop-state")
endif()
configure_file(cmake/tarn1516e.pc.in install/tarn1516e.pc @ONLY)
configure_file(cmake/rti1516e.pc.in install/rti1516e.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/install/tarn1516e.pc ${PROJECT_BINARY_DIR}/install/rti1516e.pc
   DESTINATION lib/pkgconfig COMPONENT development)

# ---- Reading

install(FILES README.md CHANGELOG.md CONTRIBUTING.md SECURITY.md
   DESTINATION share/doc/tarn1516e COMPONENT documents)
install(FILES standin/README.md DESTINATION share/doc/tarn1516e/standin COMPONENT documents)
install(DIRECTORY docs DESTINATION share/doc/tarn1516e COMPONENT documents
   FILES_MATCHING PATTERN *.md PATTERN *.svg PATTERN *.dot PATTERN *.png)
install(DIRECTORY examples/ DESTINATION share/tarn1516e/examples COMPONENT documents)

if(PROJECT_IS_TOP_LEVEL)
   include(Package)
endif()
