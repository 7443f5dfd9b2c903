# What other compilers and the real framework do not take, found without them. Run as a script from the
# top folder.
file(GLOB_RECURSE files src/*.h src/*.cpp apps/*.h apps/*.cpp examples/*.cpp tests/*.cpp tests/*.h)
set(faults)
foreach(file ${files})
    # Handlers are named in full, as the standard wants the address of a member.
    file(STRINGS ${file} lines REGEX "^ *ON_[A-Z_]+\\((.*[ (])?[A-Za-z:]*On[A-Z][A-Za-z]*\\)")
    # The stand-in's rooms are its own: a program with the framework itself has no such headers.
    if(NOT file MATCHES "/src/afx/|/tests/")
        file(STRINGS ${file} rooms REGEX "#include [\"<]afx/")
        list(APPEND lines ${rooms})
    endif()
    foreach(line ${lines})
        string(APPEND faults "\n${file}: ${line}")
    endforeach()
endforeach()
if(faults)
    message(FATAL_ERROR "${faults}")
endif()
