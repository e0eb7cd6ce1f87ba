#include "dump_element.h"

#include <libxml/parser.h>
#include <libxml/parserInternals.h>

#include <exception>
#include <fstream>
#include <memory>
#include <mutex>
#include <new>
#include <string_view>

#include "base64.h"
#include "dump_format.h"
#include "import_result.h"

namespace host {
namespace {

constexpr std::size_t kPieceSize = 65536;
// Space for attributes that the parser takes at the most, two entries for each.
constexpr int kMaxAttributeEntries = 4096;
constexpr int kParserOptions = XML_PARSE_RECOVER | XML_PARSE_NONET | XML_PARSE_NOERROR |
                               XML_PARSE_NOWARNING | XML_PARSE_HUGE;

std::string_view view(const xmlChar* text) { return reinterpret_cast<const char*>(text); }

bool isDump(const xmlChar* name, const xmlChar** attributes) {
    if (view(name) != "script" || attributes == nullptr) {
        return false;
    }
    for (; attributes[0] != nullptr; attributes += 2) {
        if (view(attributes[0]) == "type") {
            return attributes[1] != nullptr && view(attributes[1]) == kDumpMediaType;
        }
    }
    return false;
}

// Receives the parser's events. It must not handle declarations of entities: a dump of more
// than 10 MB needs XML_PARSE_HUGE, which lifts the parser's own guard against entities that
// amplify each other. Without handlers the parser knows only the five predefined ones, as
// long as its user data is not the parser itself: it then looks them up on its own.
class DumpFinder {
public:
    explicit DumpFinder(const std::string& path) : file_(path, std::ios::binary) {}

    Payload find();

private:
    struct Release {
        void operator()(xmlParserCtxt* parser) const {
            xmlFreeDoc(parser->myDoc);  // made for the declarations of a hostile DTD
            xmlFreeParserCtxt(parser);
        }
        void operator()(xmlParserInputBuffer* buffer) const {
            xmlFreeParserInputBuffer(buffer);
        }
    };
    enum class State { kBefore, kInside, kAfter };

    void createParser();
    void parse();
    void start(const xmlChar* name, const xmlChar** attributes);
    void append(const xmlChar* text, int size);
    void end();

    // No exception may pass through the parser: it is kept until the parser has returned.
    template <class Event>
    static void on(void* self, Event event);
    static xmlSAXHandler handlers();
    static int read(void* self, char* buffer, int size);
    bool hasTooManyAttributes() const;

    std::ifstream file_;
    std::unique_ptr<xmlParserCtxt, Release> parser_;
    std::exception_ptr failure_;
    State state_ = State::kBefore;
    Base64Decoder decoder_;
    Payload payload_;
};

Payload DumpFinder::find() {
    if (file_.is_open()) {
        parse();
    }
    if (failure_) {
        std::rethrow_exception(failure_);
    }
    if (!file_.is_open() || file_.bad()) {
        throw DumpError(kFileUnreadable, "the document cannot be read");
    }
    if (state_ == State::kBefore) {
        throw DumpError(kNoDump, "the document holds no dump");
    }
    if (state_ == State::kInside) {
        throw DumpError(kDumpDamaged, "the dump is cut");
    }
    return std::move(payload_);
}

// In place of xmlCreateIOParserCtxt, which leaks its input when memory runs out.
void DumpFinder::createParser() {
    constexpr auto kAnyEncoding = XML_CHAR_ENCODING_NONE;
    parser_.reset(xmlNewParserCtxt());
    std::unique_ptr<xmlParserInputBuffer, Release> buffer(
        xmlParserInputBufferCreateIO(read, nullptr, this, kAnyEncoding));
    if (parser_ == nullptr || buffer == nullptr) {
        throw std::bad_alloc();
    }
    *parser_->sax = handlers();
    parser_->userData = this;
    xmlParserInput* input = xmlNewIOInputStream(parser_.get(), buffer.get(), kAnyEncoding);
    if (input == nullptr) {
        throw std::bad_alloc();
    }
    static_cast<void>(buffer.release());  // the input's now
    inputPush(parser_.get(), input);
}

void DumpFinder::parse() {
    static std::once_flag initialized;  // several threads may be the first to import
    std::call_once(initialized, xmlInitParser);
    createParser();
    xmlCtxtUseOptions(parser_.get(), kParserOptions);
    xmlParseDocument(parser_.get());
    if (parser_->errNo == XML_ERR_NO_MEMORY) {
        throw std::bad_alloc();
    }
}

void DumpFinder::start(const xmlChar* name, const xmlChar** attributes) {
    if (state_ == State::kInside) {
        throw DumpError(kDumpDamaged, "the dump holds an element");
    }
    if (state_ == State::kBefore && isDump(name, attributes)) {
        state_ = State::kInside;
    }
}

void DumpFinder::append(const xmlChar* text, int size) {
    if (state_ != State::kInside) {
        return;
    }
    if (payload_.empty() || payload_.back().size() >= kPieceSize) {
        payload_.emplace_back();
    }
    if (!decoder_.feed(reinterpret_cast<const char*>(text), static_cast<std::size_t>(size),
                       payload_.back())) {
        throw DumpError(kDumpDamaged, "the dump is not Base64");
    }
}

void DumpFinder::end() {
    if (state_ != State::kInside) {
        return;
    }
    state_ = State::kAfter;
    xmlStopParser(parser_.get());
    if (payload_.empty() || !decoder_.finish(payload_.back())) {
        throw DumpError(kDumpDamaged, "the dump is not Base64");
    }
}

template <class Event>
void DumpFinder::on(void* self, Event event) {
    DumpFinder& finder = *static_cast<DumpFinder*>(self);
    if (finder.failure_) {
        return;
    }
    try {
        event(finder);
    } catch (...) {
        finder.failure_ = std::current_exception();
        xmlStopParser(finder.parser_.get());
    }
}

xmlSAXHandler DumpFinder::handlers() {
    xmlSAXHandler sax = {};
    sax.startElement = [](void* self, const xmlChar* name, const xmlChar** attributes) {
        on(self, [&](DumpFinder& finder) { finder.start(name, attributes); });
    };
    sax.characters = [](void* self, const xmlChar* text, int size) {
        on(self, [&](DumpFinder& finder) { finder.append(text, size); });
    };
    sax.endElement = [](void* self, const xmlChar*) {
        on(self, [](DumpFinder& finder) { finder.end(); });
    };
    return sax;
}

int DumpFinder::read(void* self, char* buffer, int size) {
    DumpFinder& finder = *static_cast<DumpFinder*>(self);
    if (finder.hasTooManyAttributes()) {
        return -1;  // ends the document for the parser
    }
    finder.file_.read(buffer, size);
    return finder.file_.bad() ? -1 : static_cast<int>(finder.file_.gcount());
}

// The parser compares each attribute of a start tag with all before it: with a million of
// them it would take an hour.
bool DumpFinder::hasTooManyAttributes() const {
    return parser_ != nullptr && parser_->maxatts > kMaxAttributeEntries;
}

}  // namespace

Payload readDumpElement(const std::string& path) { return DumpFinder(path).find(); }

}  // namespace host
