#include "trust.h"

#include <cstdio>
#include <unistd.h>

namespace {

std::string ModeText(mode_t mode)
{
    char text[8];
    std::snprintf(text, sizeof text, "%03o", unsigned(mode & 07777));
    return text;
}

} // namespace

std::string TrustProblem(const struct stat& info)
{
    if (info.st_uid != ::geteuid() && info.st_uid != 0)
        return "owned by another user (uid " + std::to_string(info.st_uid) + ")";
    if (info.st_mode & S_IWOTH)
        return "writable by every user (mode " + ModeText(info.st_mode) + ")";
    if (info.st_mode & S_IWGRP)
        return "writable by its group (mode " + ModeText(info.st_mode) + ")";
    return {};
}
