# The Debian package, of the rules of Install.cmake. Everything lies in one home, since the library
# looks for the rest of it two levels above itself; only what Debian wants elsewhere lies elsewhere.

# ---- What only the package has

# A link that the system's packages of Java runtimes keep right, whichever of them is the default.
set(PACKAGE_FOLDER ${PROJECT_BINARY_DIR}/package)
file(MAKE_DIRECTORY ${PACKAGE_FOLDER})
file(CREATE_LINK /usr/lib/jvm/default-java ${PACKAGE_FOLDER}/jre SYMBOLIC)
string(TIMESTAMP PACKAGE_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(cmake/package/changelog.in package/changelog @ONLY)
file(ARCHIVE_CREATE OUTPUT ${PACKAGE_FOLDER}/changelog.gz PATHS ${PACKAGE_FOLDER}/changelog
   FORMAT raw COMPRESSION GZip)
install(FILES ${PACKAGE_FOLDER}/jre DESTINATION . COMPONENT package EXCLUDE_FROM_ALL)
# Seen from the home.
install(FILES cmake/package/copyright ${PACKAGE_FOLDER}/changelog.gz
   DESTINATION ../../usr/share/doc/tarn1516e COMPONENT package EXCLUDE_FROM_ALL)

# ---- The package

set(TOOLS "and tarn1516e-check")
if(TARGET tarn1516e-record)
   set(TOOLS "tarn1516e-check and tarn1516e-record")
endif()
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR})
set(CPACK_PACKAGE_NAME tarn1516e)
set(CPACK_PACKAGE_CONTACT "The librti1516e developers <librti1516e@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "C++ interface of an IEEE 1516.1-2010 (HLA) infrastructure")
set(CPACK_PACKAGE_DESCRIPTION "\
A federate links librti1516e, which forwards its services to the Java
classes of the run-time infrastructure and brings back their callbacks.
This package has the libraries, headers, documents, examples,
${TOOLS};
the Java classes are a product of their own.")
set(CPACK_PACKAGING_INSTALL_PREFIX /opt/tarn1516e)
set(CPACK_COMPONENTS_ALL runtime development documents package)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${STAGED_HOME}/${LIBRARY_DIR})
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS default-jre-headless)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "g++, cmake, pkg-config")
if(CMAKE_SYSTEM_PROCESSOR MATCHES "aarch64|arm64")
   set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE arm64)
elseif(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
   set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE amd64)
endif()
include(CPack)
