#pragma once

#include <string>

#include <sys/stat.h>

// Why this user must not trust a file or folder with these attributes: whoever owns it or may
// write to it decides what it holds, the code of a widget library or the socket that editor
// starts hand their files to. Empty when it may be trusted. Root's are trusted, as root could
// change anything of this user's anyway.
std::string TrustProblem(const struct stat& info);
