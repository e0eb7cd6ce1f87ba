#include "notes_export/notes_exporter.h"

#include "export/notes_exporter_impl.h"

namespace veloran {

NotesExporter::NotesExporter() : impl_(std::make_unique<NotesExporterImpl>()) {}

NotesExporter::~NotesExporter() = default;

void NotesExporter::setExportDir(const std::string& directory) {
    impl_->setExportDir(directory);
}

int NotesExporter::export_bookmarks_to_html(
    const std::string& bookHash, const std::set<unsigned long long>& ids,
    const std::function<bool(long long, long long)>& before) {
    return impl_->export_bookmarks_to_html(bookHash, ids, before);
}

std::string NotesExporter::getExportedFileName(const std::string& bookHash) {
    return impl_->getExportFilename(bookHash);
}

int NotesExporter::import_from_file(const std::string& path) {
    return impl_->import_from_file(path);
}

}  // namespace veloran
