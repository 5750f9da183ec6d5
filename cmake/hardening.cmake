# What makes a fault of the program harder to use, as Debian builds its packages. Not for builds with sanitizers,
# which look for faults by themselves.
option(QUILLON_HARDENED "Build with stack protector, checked library calls, full RELRO and control-flow protection; install stripped" OFF)

include(CheckCXXCompilerFlag)
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)

if(QUILLON_HARDENED)
  add_compile_options(-fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
  add_link_options(-Wl,-z,relro -Wl,-z,now)
  check_cxx_compiler_flag(-fcf-protection QUILLON_HAS_CONTROL_FLOW_PROTECTION) # not on every kind of processor
  if(QUILLON_HAS_CONTROL_FLOW_PROTECTION)
    add_compile_options(-fcf-protection)
  endif()
endif()
