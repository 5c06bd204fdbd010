# tarn_exports(target): lets a library export the public interface, and the few functions by which
# the library finds itself and is looked into. Templates of the C++ library that were instantiated
# here stay inside, and so do the natives, which Java gets by their addresses.

# Mangled, since a demangled function template begins with the type of its result.
set(EXPORTED_NAMES
   _ZN8rti1516e* _ZNK8rti1516e*                     # functions of namespace rti1516e
   _ZlsR*RKN8rti1516e*                              # how intervals are written
   _ZTVN8rti1516e* _ZTIN8rti1516e* _ZTSN8rti1516e*  # and the type records of its classes
   _ZN9tarn1516e5mutex* _ZN9tarn1516e6thread* _ZNK9tarn1516e6thread* _ZN9tarn1516e11this_thread*
   _ZN9tarn1516els*                                 # how thread identifiers are written
   _Z15registerNatives* _Z11setCatchAll* _Z12decodeHelper*
   tarn1516e_exported_symbol_for_dlsym*)

if(APPLE)
   list(TRANSFORM EXPORTED_NAMES PREPEND _)
   list(JOIN EXPORTED_NAMES "\n" EXPORTED_TEXT)
   set(EXPORT_FLAG -Wl,-exported_symbols_list,)
else()
   list(JOIN EXPORTED_NAMES ";" EXPORTED_TEXT)
   set(EXPORTED_TEXT "{ global: ${EXPORTED_TEXT}; local: *; };")
   set(EXPORT_FLAG -Wl,--version-script=)
endif()
set(EXPORT_LIST ${PROJECT_BINARY_DIR}/exports.list)
file(CONFIGURE OUTPUT ${EXPORT_LIST} CONTENT "${EXPORTED_TEXT}\n")

function(tarn_exports target)
   target_link_options(${target} PRIVATE ${EXPORT_FLAG}${EXPORT_LIST})
   set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${EXPORT_LIST})
   if(NOT APPLE)
      # Calls of a library to itself go straight there; elsewhere no other way exists.
      target_link_options(${target} PRIVATE -Wl,-Bsymbolic-functions)
   endif()
endfunction()
