# 32-bit Linux programs, built with the native compiler and its multilib.
set(CMAKE_CXX_FLAGS_INIT "-m32 -msse2 -mfpmath=sse")
set(CMAKE_C_FLAGS_INIT "-m32 -msse2 -mfpmath=sse")
# Where Debian puts 32-bit libraries of native packages.
list(APPEND CMAKE_LIBRARY_PATH /usr/lib32)
