# tarn_exports(target): lets a library export the public interface and nothing that the compiler
# made of it besides.

function(tarn_exports target)
   if(APPLE)
      set(list ${PROJECT_SOURCE_DIR}/cmake/exports.macos)
      target_link_options(${target} PRIVATE -Wl,-exported_symbols_list,${list})
   else()
      set(list ${PROJECT_SOURCE_DIR}/cmake/exports.map)
      target_link_options(${target} PRIVATE -Wl,--version-script=${list})
   endif()
   set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${list})
endfunction()
