# What makes it harder to turn a fault of native code into an attack, on Linux; the Windows tool chain does the like of
# itself.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)

# For everything, what costs next to no instruction of a call: frames with buffers are guarded. The C library's start files
# do not say that they suit a shadow stack, though they do: the linker is told.
add_compile_options(-fstack-protector -fstack-clash-protection -fcf-protection=return)

# For what is not on the way of a call: all frames with arrays or addresses, and marks where indirect calls may arrive.
# On that way they would cost 3 to 7 and 4 to 10 in a hundred instructions.
set(ORBIS_FULL_HARDENING -fstack-protector-strong -fcf-protection)
add_link_options(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack -Wl,-z,shstk)

# Checked functions need optimisation; the sanitizers have checks of their own.
set(optimised $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
add_compile_options($<${optimised}:-U_FORTIFY_SOURCE> $<${optimised}:-D_FORTIFY_SOURCE=3>)
