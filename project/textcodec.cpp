#include "textcodec.h"

#include <algorithm>
#include <iconv.h>

namespace {

bool IsAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0x80) == 0; });
}

// One open conversion per direction and thread, reset before each use: opening one costs far
// more than converting a short attribute value.
class Converter {
public:
    Converter(const char* to, const char* from) : m_cd(iconv_open(to, from)) {}
    ~Converter()
    {
        if (m_cd != kInvalid)
            iconv_close(m_cd);
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    bool Convert(std::string_view in, std::string& out)
    {
        if (m_cd == kInvalid)
            return false;
        iconv(m_cd, nullptr, nullptr, nullptr, nullptr);
        // GB2312 never needs more bytes than UTF-8 for the same text; UTF-8 needs at most
        // 3 bytes for every 2 of GB2312 and 1 for 1.
        std::string buffer(in.size() * 2 + 4, '\0');
        char* src = const_cast<char*>(in.data());
        std::size_t srcLeft = in.size();
        char* dst = buffer.data();
        std::size_t dstLeft = buffer.size();
        if (iconv(m_cd, &src, &srcLeft, &dst, &dstLeft) == std::size_t(-1))
            return false;
        if (iconv(m_cd, nullptr, nullptr, &dst, &dstLeft) == std::size_t(-1))
            return false;
        buffer.resize(buffer.size() - dstLeft);
        out = std::move(buffer);
        return true;
    }

private:
    static inline const iconv_t kInvalid = reinterpret_cast<iconv_t>(-1);
    iconv_t m_cd;
};

} // namespace

bool Utf8ToGb2312(std::string_view utf8, std::string& out)
{
    if (IsAscii(utf8)) {
        out.assign(utf8);
        return true;
    }
    thread_local Converter converter("GB2312", "UTF-8");
    return converter.Convert(utf8, out);
}

bool Gb2312ToUtf8(std::string_view gb2312, std::string& out)
{
    if (IsAscii(gb2312)) {
        out.assign(gb2312);
        return true;
    }
    thread_local Converter converter("UTF-8", "GB2312");
    return converter.Convert(gb2312, out);
}

std::string Utf8ToGb2312OrKeep(std::string_view utf8)
{
    std::string out;
    return Utf8ToGb2312(utf8, out) ? out : std::string(utf8);
}

std::string Gb2312ToUtf8OrKeep(std::string_view gb2312)
{
    std::string out;
    return Gb2312ToUtf8(gb2312, out) ? out : std::string(gb2312);
}
