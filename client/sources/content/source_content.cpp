#include "client/sources/content/source_content.h"

#include "client/text/control_characters.h"

namespace client {

void SkippedRecords::add(const std::string& record) { records_.add(oneLine(record)); }

std::string SkippedRecords::summary(const std::string& file) const {
    return records_.isEmpty()
               ? ""
               : "Not everything in " + file + " could be read:\n" + records_.text();
}

}  // namespace client
