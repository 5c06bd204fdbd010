# tarn_own_code(target): how this project's own code is compiled, the library and all around it.

find_package(Threads REQUIRED)

if(TARN_HARDEN AND NOT APPLE)
   add_link_options(-Wl,-z,relro,-z,now)
endif()

function(tarn_own_code target)
   set_target_properties(${target} PROPERTIES
      CXX_STANDARD 14
      CXX_STANDARD_REQUIRED ON
      CXX_EXTENSIONS OFF
      CXX_VISIBILITY_PRESET hidden
      VISIBILITY_INLINES_HIDDEN ON
      POSITION_INDEPENDENT_CODE ON)
   # Exception lists and std::auto_ptr belong to the standard's interface.
   target_compile_options(${target} PRIVATE
      -Wall -Wextra -Wpedantic -Wshadow -Wconversion
      -Wno-deprecated -Wno-deprecated-declarations
      $<$<BOOL:${TARN_WERROR}>:-Werror>
      # An assertion's file name is told from a folder beside the sources' root.
      -fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=../)
   if(TARN_HARDEN)
      target_compile_options(${target} PRIVATE
         -Wnull-dereference -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2
         -D_GLIBCXX_ASSERTIONS)
   endif()
   if(TARN_SANITIZE)
      target_compile_options(${target} PRIVATE
         -fsanitize=${TARN_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
      target_link_options(${target} PUBLIC -fsanitize=${TARN_SANITIZE})
   endif()
endfunction()
