#include "readerlib/database.h"
#include "readerlib/import_export_db.h"
#include "readerlib/position_uri.h"
#include "script.h"

using scripted::recordCall;
using scripted::recordRelease;
using scripted::script;
using Ids = std::set<unsigned long long>;

namespace {

std::string listed(const Ids& ids) {
    std::string text;
    for (const unsigned long long id : ids) {
        text += (text.empty() ? "" : ", ") + std::to_string(id);
    }
    return "{" + text + "}";
}

}  // namespace

struct SqliteCpp::DB::State {
    std::string path;
};

SqliteCpp::DB::DB() { recordCall("DB::DB"); }

SqliteCpp::DB::~DB() {
    recordRelease("DB::~DB()");
    script().openHandles -= state ? 1 : 0;
}

namespace Veloran::ReaderLib {

bool DataBase::open(std::string& path) {
    recordCall("DataBase::open", path);
    state.reset(new State{std::move(path)});
    script().openHandles++;
    return true;
}

ImportExportDBV2::ImportExportDBV2(DataBase* database, unsigned long long limit, int mode)
    : database_(database), limit_(limit), mode_(mode) {
    recordCall("ImportExportDBV2::ImportExportDBV2",
               database_->state ? database_->state->path : "closed", limit_, mode_);
}

void ImportExportDBV2::set_export_bookmark_ids(const Ids& ids) {
    recordCall("ImportExportDBV2::set_export_bookmark_ids", listed(ids));
    exportBookmarkIds_ = ids;
}

bool ImportExportDBV2::books_export(std::string& out, const Ids& books) {
    recordCall("ImportExportDBV2::books_export", out, listed(books));
    out += script().payload;
    return script().exportSucceeds;
}

int ImportExportDBV2::books_import(const std::string& path) {
    recordCall("ImportExportDBV2::books_import", path);
    return script().importResult;
}

bool extractPageFromnURI(const std::string& uri, double& page) {
    recordCall("extractPageFromnURI", uri);
    page = scripted::found(script().pages, uri, 666.0);  // the page number of no note
    return script().pages.count(uri) > 0;
}

}  // namespace Veloran::ReaderLib
