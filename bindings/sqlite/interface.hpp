// The C interface of the system's SQLite, as far as we use it.
#pragma once

// Declared here, not taken from its header: a cross-build has none.
struct sqlite3;
struct sqlite3_stmt;

extern "C" {
/// Makes the file when it is missing. The connection is to be closed even when this fails.
int sqlite3_open(const char* path, sqlite3** database);
int sqlite3_close(sqlite3* database);
/// Of the latest call that failed; UTF-8, until the next call.
const char* sqlite3_errmsg(sqlite3* database);
int sqlite3_prepare_v2(sqlite3* database, const char* sql, int bytes, sqlite3_stmt** statement,
                       const char** tail);
int sqlite3_step(sqlite3_stmt* statement);
int sqlite3_finalize(sqlite3_stmt* statement);
// Columns count from 0; what they give is valid until the next step. Null for NULL.
const unsigned char* sqlite3_column_text(sqlite3_stmt* statement, int column);
const void* sqlite3_column_blob(sqlite3_stmt* statement, int column);
int sqlite3_column_bytes(sqlite3_stmt* statement, int column);
/// Parameters count from 1.
int sqlite3_bind_text(sqlite3_stmt* statement, int parameter, const char* text, int bytes,
                      void (*destroy)(void*));
}
