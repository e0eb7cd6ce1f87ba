#include "client/pages/exporter.h"

#include "store/database_paths.h"

namespace client {
Exporter::Exporter(const std::string& directory)
    : handle_(new_notes_exporter(), &free_notes_exporter) {
    setDirectory(directory.empty() ? host::kNotesDirectory : directory);
}

void Exporter::setDirectory(const std::string& directory) {
    notes_exporter_set_export_dir(handle(), directory.c_str());
    directory_ = directory;
}

std::string Exporter::fileName(const std::string& hash) const {
    std::string buffer(256, '\0');
    std::size_t length = std::string::npos;
    // The library does not report that it cut the name: a name without its end is requested
    // again.
    while (length == std::string::npos) {
        buffer.assign(buffer.size() * 2, '\1');
        notes_exporter_get_exported_file_name(handle(), buffer.data(), buffer.size(),
                                              hash.c_str());
        length = buffer.find('\0');
    }
    return buffer.substr(0, length);
}

}  // namespace client
