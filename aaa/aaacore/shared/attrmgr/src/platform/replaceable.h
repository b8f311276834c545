// How a process puts definitions of its own in the place of the library's: those of the functions of aaa_platform.h,
// and of no others. Three things work together.
//
// In a shared link each is called through its dynamic symbol, and the dynamic linker binds that to the first definition
// in its search order: the program's own, or a preloaded library's. -fsemantic-interposition (CMakeLists.txt) keeps the
// compiler from taking the definition that it sees here for the one that will be called; it would inline it. For
// the same reason the library is not linked with -Bsymbolic.
//
// In a static link there is no such search, and two definitions of one name would be an error. Those of the library are
// weak: the linker takes the program's, wherever it meets it.
//
// Every operation begins by following a handle. Where id_to_ptr has not been replaced, a handle is an address and the
// call can be saved. What tells is an alias, a second name of the library's own definition that is never exported and
// so never replaced: while id_to_ptr, which is whatever the process calls, has the alias's address, it is the library's
// (handle_table.h).
//
// Every other exported function is an edge that nothing inside the library calls: a client that happens to define a
// function of that name would otherwise take part in operations that have nothing to do with it. The test abi.binary
// compares tests/abi/replaceable.txt with the relocations of the built library.
#pragma once

#define ATTRMGR_REPLACEABLE [[gnu::weak]]
