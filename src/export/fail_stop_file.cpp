#include "export/fail_stop_file.h"

#include <locale>

#include "export/file_path.h"

namespace veloran {

FailStopFilebuf::int_type FailStopFilebuf::overflow(int_type byte) {
    const int_type result = failed_ ? traits_type::eof() : std::filebuf::overflow(byte);
    failed_ = traits_type::eq_int_type(result, traits_type::eof());
    return result;
}

std::streamsize FailStopFilebuf::xsputn(const char* bytes, std::streamsize count) {
    const std::streamsize written = failed_ ? 0 : std::filebuf::xsputn(bytes, count);
    failed_ = failed_ || written < count;
    return written;
}

FailStopFile::FailStopFile(const std::string& path) : std::ostream(nullptr) {
    rdbuf(&buffer_);
    imbue(std::locale::classic());  // a global locale may convert bytes on their way out
    if (!namesFile(path) ||
        buffer_.open(path, std::ios::out | std::ios::trunc) == nullptr) {
        setstate(failbit);
    }
}

void FailStopFile::close() {
    if (buffer_.close() == nullptr) {
        setstate(failbit);
    }
}

}  // namespace veloran
