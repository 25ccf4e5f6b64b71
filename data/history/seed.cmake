# cmake -Dfrom=FILE -Dto=FILE -P seed.cmake: copies unless the target is there.
if(NOT EXISTS ${to})
    configure_file(${from} ${to} COPYONLY)
endif()
