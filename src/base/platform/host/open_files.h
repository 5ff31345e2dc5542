// Which files are open and how, so that the host refuses what sharing refuses on Windows: a second writer, and the
// removal or replacement of a file in use.
#pragma once

#include <sys/stat.h>

#include <string>

namespace vexa::platform::host {

enum class Access {
    Reading,  // lets others read and write
    Writing,  // lets others read
    Locking   // lets nobody in
};

bool AdmitsAccess(const struct stat& file, Access access);
bool IsInUse(const struct stat& file);
void NoteOpened(int descriptor, const struct stat& file, Access access);
void NoteClosed(int descriptor);

// Stands for another program that holds a file for itself alone, until the descriptor returned is given to UnlockFile;
// -1 when the file cannot be locked.
int LockFile(const std::string& path);
void UnlockFile(int descriptor);

}  // namespace vexa::platform::host
