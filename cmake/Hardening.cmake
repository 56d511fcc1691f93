# What stops a program that was led astray, before it deletes anything. Users' builds get what costs next to
# nothing; those that are tested also have the C++ library check every index.
string(APPEND CMAKE_CXX_FLAGS_DEBUG " -D_GLIBCXX_ASSERTIONS")
string(APPEND CMAKE_CXX_FLAGS_RELWITHDEBINFO " -D_GLIBCXX_ASSERTIONS")

# Undefined first, because some distributions' compilers define it themselves.
string(APPEND CMAKE_CXX_FLAGS_RELEASE
       " -fPIE -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2")
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-fcf-protection DROSSBIN_HAS_CF_PROTECTION)
if(DROSSBIN_HAS_CF_PROTECTION)
  string(APPEND CMAKE_CXX_FLAGS_RELEASE " -fcf-protection")
endif()
# Other linkers than that of Linux always do it, or know no such words.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  string(APPEND CMAKE_EXE_LINKER_FLAGS_RELEASE " -pie -Wl,-z,relro,-z,now")
endif()
