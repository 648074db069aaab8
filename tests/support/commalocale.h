#pragma once

#include <string>

// The locale of a desktop that writes numbers with a decimal comma (German), for tests of
// number text that must not follow the user's locale. When the system has no such locale, it is
// generated with localedef into a folder of the build tree and found through LOCPATH.
namespace CommaLocale {

constexpr const char* kName = "de_DE.UTF-8";

// Makes the locale available; false (with the reason in why) when it cannot be made.
bool Prepare(std::string& why);
// The environment assignments that give a child process this locale, for a shell command line.
std::string ShellEnvironment();

} // namespace CommaLocale

// Switches this process's whole locale to the comma locale for its lifetime.
class CommaLocaleScope {
public:
    CommaLocaleScope();
    ~CommaLocaleScope();
    CommaLocaleScope(const CommaLocaleScope&) = delete;
    CommaLocaleScope& operator=(const CommaLocaleScope&) = delete;

    // False when the locale could not be set; Why() says why.
    bool Active() const { return m_active; }
    const std::string& Why() const { return m_why; }

private:
    std::string m_previous;
    std::string m_why;
    bool m_active = false;
};
