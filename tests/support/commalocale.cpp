#include "commalocale.h"

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <unistd.h>

namespace {

const std::string kGeneratedFolder = KELVO_TEST_LOCALE_DIR;

bool LocaleWorks()
{
    const std::string saved = std::setlocale(LC_ALL, nullptr);
    const bool works = std::setlocale(LC_ALL, CommaLocale::kName) != nullptr;
    std::setlocale(LC_ALL, saved.c_str());
    return works;
}

} // namespace

bool CommaLocale::Prepare(std::string& why)
{
    if (LocaleWorks())
        return true;
    // The C library remembers a locale it failed to load, so the generated one must exist before
    // the first attempt to use it. It is made aside and renamed into place, so that test programs
    // running side by side never see half a locale; the loser of a race finds the winner's.
    const std::string generated = kGeneratedFolder + "/" + kName;
    if (!std::filesystem::exists(generated)) {
        std::filesystem::create_directories(kGeneratedFolder);
        const std::string aside = kGeneratedFolder + "/making-" + std::to_string(getpid());
        const std::string command = "localedef -i de_DE -f UTF-8 '" + aside + "' >/dev/null 2>&1";
        if (std::system(command.c_str()) == 0)
            ::rename(aside.c_str(), generated.c_str());
        std::error_code ignored;
        std::filesystem::remove_all(aside, ignored);
    }
    setenv("LOCPATH", kGeneratedFolder.c_str(), 1);
    if (!LocaleWorks()) {
        why = std::string("cannot make the locale ") + kName + " (is Debian's package \"locales\" installed?)";
        return false;
    }
    return true;
}

std::string CommaLocale::ShellEnvironment()
{
    std::string environment = std::string("LANG=") + kName + " LC_ALL=" + kName;
    if (const char* path = std::getenv("LOCPATH"))
        environment += std::string(" LOCPATH='") + path + "'";
    return environment;
}

CommaLocaleScope::CommaLocaleScope() : m_previous(std::setlocale(LC_ALL, nullptr))
{
    m_active = CommaLocale::Prepare(m_why) && std::setlocale(LC_ALL, CommaLocale::kName) != nullptr;
}

CommaLocaleScope::~CommaLocaleScope()
{
    std::setlocale(LC_ALL, m_previous.c_str());
}
