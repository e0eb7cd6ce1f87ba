#include "document.h"

#include <zlib.h>

#include <fstream>
#include <sstream>
#include <vector>

#include "text/base64.h"

std::string contentOf(const char* path) {
    std::ostringstream content;
    content << std::ifstream(path).rdbuf();
    return content.str();
}

std::string textOfDump(const std::string& document) {
    const std::size_t begin = document.find('>', document.find("<script")) + 1;
    const std::size_t end = document.find("</script>");
    const std::string payload =
        host::decodeBase64(document.substr(begin, end - begin)).value();
    std::ofstream("dump.gz") << payload;
    std::string text(document.size() * 10, '\0');
    gzFile file = gzopen("dump.gz", "rb");
    const int size = gzread(file, text.data(), static_cast<unsigned>(text.size()));
    gzclose(file);
    text.resize(static_cast<std::size_t>(size));
    return text;
}

void compress(const std::string& text) {
    std::vector<Bytef> compressed(compressBound(text.size()));
    uLongf size = compressed.size();
    compress2(compressed.data(), &size, reinterpret_cast<const Bytef*>(text.data()),
              text.size(), Z_BEST_SPEED);
}

void writeAtOnce(const std::string& document, const char* path) {
    std::ofstream(path).write(document.data(),
                              static_cast<std::streamsize>(document.size()));
}
