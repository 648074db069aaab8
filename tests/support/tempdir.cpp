#include "tempdir.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <unistd.h>

TempDir::TempDir()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "kelvo-test-XXXXXX").string();
    if (!mkdtemp(pattern.data()))
        std::abort();
    m_path = pattern;
    std::filesystem::permissions(m_path, std::filesystem::perms(0755));
}

TempDir::~TempDir()
{
    std::error_code ignored;
    std::filesystem::permissions(m_path, std::filesystem::perms::owner_all, std::filesystem::perm_options::add,
                                 ignored);
    std::filesystem::remove_all(m_path, ignored);
}

std::string TempDir::Path(std::string_view name) const
{
    return m_path + "/" + std::string(name);
}

std::string TempDir::Write(std::string_view name, std::string_view bytes) const
{
    const std::string path = Path(name);
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
}

std::string TempDir::Read(std::string_view name) const
{
    std::ifstream in(Path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::vector<std::string> TempDir::Entries() const
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(m_path))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

UnprivilegedScope::UnprivilegedScope()
{
    constexpr uid_t kNobody = 65534;
    if (::geteuid() == 0)
        m_dropped = ::seteuid(kNobody) == 0;
}

UnprivilegedScope::~UnprivilegedScope()
{
    if (m_dropped && ::seteuid(0) != 0)
        std::abort();
}
