# The embedded engine: the encrypted SQLite amalgamation, compiled once, without our warnings and sanitizers.
find_package(PkgConfig REQUIRED)
pkg_check_modules(sodium REQUIRED IMPORTED_TARGET libsodium)
pkg_check_modules(pq REQUIRED IMPORTED_TARGET libpq)  # the larger engine's client

set(ENGINE_SOURCES ${CMAKE_SOURCE_DIR}/node_modules/better-sqlite3-multiple-ciphers/deps/sqlite3)
if(NOT EXISTS ${ENGINE_SOURCES}/sqlite3.c)
  message(FATAL_ERROR "The engine is missing: run tools/setup first.")
endif()

# Its cipher forgets what went wrong below it and decrypts what was never read: a folder that drops out for a moment
# would look like a damaged file. One condition is widened.
set(ENGINE_SOURCE ${CMAKE_BINARY_DIR}/sqlite3.c)
if(NOT EXISTS ${ENGINE_SOURCE} OR ${CMAKE_CURRENT_LIST_FILE} IS_NEWER_THAN ${ENGINE_SOURCE})
  set(forgets "if (rc == SQLITE_IOERR_SHORT_READ)\n  {\n    return rc;\n  }\n\n  if (mcFile->openFlags & SQLITE_OPEN_MAIN_DB)\n  {\n    rc = mcReadMainDb")
  string(REPLACE "rc == SQLITE_IOERR_SHORT_READ" "rc != SQLITE_OK" remembers "${forgets}")
  file(READ ${ENGINE_SOURCES}/sqlite3.c original)
  string(REPLACE "${forgets}" "${remembers}" mended "${original}")
  if(mended STREQUAL original)
    message(FATAL_ERROR "The engine's cipher does not read as it did: look at mcIoRead in sqlite3.c.")
  endif()
  file(WRITE ${ENGINE_SOURCE} "${mended}")
  unset(original)
  unset(mended)
endif()

add_library(engine STATIC ${ENGINE_SOURCE})
target_include_directories(engine SYSTEM PUBLIC ${ENGINE_SOURCES})
target_compile_options(engine PRIVATE -w -O2)
target_compile_definitions(engine PRIVATE
  SQLITE_TEMP_STORE=3          # temporary files would be plain text
  SQLITE_THREADSAFE=2
  SQLITE_DEFAULT_FILE_PERMISSIONS=0666  # the rights of new files are for the umask to say
  SQLITE_DQS=0
  SQLITE_OMIT_LOAD_EXTENSION
  SQLITE_OMIT_SHARED_CACHE
  SQLITE_DEFAULT_MEMSTATUS=0
  SQLITE_LIKE_DOESNT_MATCH_BLOBS
  CODEC_TYPE=CODEC_TYPE_AEGIS)
target_link_libraries(engine PUBLIC ${CMAKE_DL_LIBS} pthread m)
