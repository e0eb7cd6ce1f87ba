#include "dump/element.h"

#include <libxml/parser.h>

#include <cstddef>
#include <exception>
#include <memory>
#include <mutex>
#include <new>
#include <string_view>

#include "dump/format.h"
#include "dump/import_result.h"
#include "files/input_file.h"
#include "text/base64.h"

namespace host {
namespace {

constexpr std::size_t kPieceSize = 65536;
constexpr int kParserOptions = XML_PARSE_RECOVER | XML_PARSE_NONET | XML_PARSE_HUGE;

// Limits keep the import linear: the parser compares each attribute of a start tag with all
// before it, its dictionary of names has few buckets, and an error takes more time than an
// element.
constexpr std::size_t kMaxBytesBeforeDump = std::size_t{64} << 20;
constexpr std::size_t kMaxBytesOfNames = std::size_t{64} << 10;
constexpr int kMaxAttributes = 100;  // of one start tag
constexpr int kMaxErrors = 100000;

// Limits the memory: the parser remembers each open element. In an exported page, the
// element of the dump is the third one.
constexpr int kMaxOpenElements = 10000;

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

void checkNumberOf(const xmlChar** attributes) {
    for (int count = 0; attributes != nullptr && *attributes != nullptr; attributes += 2) {
        if (++count > kMaxAttributes) {
            throw DumpError(kNoDump, "an element of it has more than 100 attributes");
        }
    }
}

InputFile open(const std::string& path) {
    try {
        return InputFile(path);
    } catch (const std::runtime_error&) {
        throw DumpError(kFileUnreadable, "it is not a file, or must not be read");
    }
}

// Receives the errors of libxml2 in this thread, which are otherwise printed on standard
// error. The destructor restores the program's own handler.
class ErrorHandler {
public:
    template <class Handler>
    ErrorHandler(void* self, Handler handler) {
        xmlSetStructuredErrorFunc(self, handler);
    }
    ~ErrorHandler() { xmlSetStructuredErrorFunc(previousSelf_, previous_); }
    ErrorHandler(const ErrorHandler&) = delete;
    ErrorHandler& operator=(const ErrorHandler&) = delete;

private:
    const xmlStructuredErrorFunc previous_ = xmlStructuredError;
    void* const previousSelf_ = xmlStructuredErrorContext;
};

// Receives the parser's events. A dump of more than 10 MB needs XML_PARSE_HUGE, which
// disables the parser's guard against entities that expand each other. Therefore no entity
// is declared: without handlers, and with user data other than the parser itself, only the
// five predefined entities exist.
class DumpFinder {
public:
    explicit DumpFinder(const std::string& path) : file_(open(path)) {}

    Payload find();

private:
    struct Release {
        void operator()(xmlParserCtxt* parser) const { xmlFreeParserCtxt(parser); }
        void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
    };
    enum class State { kBefore, kInside, kAfter };

    void parse();
    void refuseInternalSubset() const;
    void start(const xmlChar* name, const xmlChar** attributes);
    void append(const xmlChar* text, int size);
    void end();
    void countError(int error);
    std::size_t read(char* buffer, std::size_t size);
    void checkLimits() const;

    // Stores an exception until the parser has returned, because none may pass through it.
    template <class Event>
    bool keepFailure(Event event);
    template <class Event>
    static void on(void* self, Event event);
    static xmlSAXHandler handlers();
    static int read(void* self, char* buffer, int size);

    InputFile file_;
    std::unique_ptr<xmlParserCtxt, Release> parser_;
    std::exception_ptr failure_;
    std::size_t bytesRead_ = 0;
    int errors_ = 0;
    State state_ = State::kBefore;
    Base64Decoder decoder_;
    Payload payload_;
};

Payload DumpFinder::find() {
    parse();
    if (failure_) {
        std::rethrow_exception(failure_);
    }
    if (state_ == State::kBefore) {
        throw DumpError(kNoDump, "it holds no dump");
    }
    if (state_ == State::kInside) {
        throw DumpError(kDumpDamaged, "its dump is cut");
    }
    return std::move(payload_);
}

void DumpFinder::parse() {
    static std::once_flag initialized;  // several threads may be the first to import
    std::call_once(initialized, xmlInitParser);
    const ErrorHandler handler(this, [](void* self, auto* error) {
        static_cast<DumpFinder*>(self)->countError(error->code);
    });
    parser_.reset(xmlNewParserCtxt());
    if (parser_ == nullptr) {
        throw std::bad_alloc();
    }
    *parser_->sax = handlers();
    parser_->userData = this;
    const std::unique_ptr<xmlDoc, Release> document(xmlCtxtReadIO(
        parser_.get(), read, nullptr, this, nullptr, nullptr, kParserOptions));
}

void DumpFinder::countError(int error) {
    ++errors_;
    keepFailure([error] {
        if (error == XML_ERR_NO_MEMORY) {
            throw std::bad_alloc();
        }
    });
}

// Throws if there is an internal subset, because the parser reads one in quadratic time.
void DumpFinder::refuseInternalSubset() const {
    if (*parser_->input->cur == '[') {
        throw DumpError(kNoDump,
                        "it has an internal subset, which no exported document has");
    }
}

void DumpFinder::start(const xmlChar* name, const xmlChar** attributes) {
    if (state_ == State::kInside) {
        throw DumpError(kDumpDamaged, "its dump holds an element");
    }
    if (parser_->nameNr > kMaxOpenElements) {
        throw DumpError(kNoDump, "its elements are nested too deep");
    }
    checkNumberOf(attributes);
    if (isDump(name, attributes)) {
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
        throw DumpError(kDumpDamaged, "its dump is not Base64");
    }
}

void DumpFinder::end() {
    if (state_ != State::kInside) {
        return;
    }
    state_ = State::kAfter;
    xmlStopParser(parser_.get());
    if (payload_.empty() || !decoder_.finish(payload_.back())) {
        throw DumpError(kDumpDamaged, "its dump is not Base64");
    }
}

template <class Event>
bool DumpFinder::keepFailure(Event event) {
    try {
        event();
    } catch (...) {
        failure_ = failure_ ? failure_ : std::current_exception();
    }
    return failure_ != nullptr;
}

template <class Event>
void DumpFinder::on(void* self, Event event) {
    DumpFinder& finder = *static_cast<DumpFinder*>(self);
    if (finder.failure_ || finder.keepFailure([&] { event(finder); })) {
        xmlStopParser(finder.parser_.get());
    }
}

xmlSAXHandler DumpFinder::handlers() {
    xmlSAXHandler sax = {};
    sax.internalSubset = [](void* self, const xmlChar*, const xmlChar*, const xmlChar*) {
        on(self, [](const DumpFinder& finder) { finder.refuseInternalSubset(); });
    };
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

// Returns -1 after a failure, because the parser must not be stopped while it reads.
int DumpFinder::read(void* self, char* buffer, int size) {
    DumpFinder& finder = *static_cast<DumpFinder*>(self);
    std::size_t count = 0;
    const auto fill = [&] { count = finder.read(buffer, static_cast<std::size_t>(size)); };
    return finder.failure_ || finder.keepFailure(fill) ? -1 : static_cast<int>(count);
}

std::size_t DumpFinder::read(char* buffer, std::size_t size) {
    checkLimits();
    try {
        const std::size_t count = file_.read(buffer, size);
        bytesRead_ += count;
        return count;
    } catch (const std::runtime_error&) {
        throw DumpError(kFileUnreadable, "it cannot be read to its end");
    }
}

void DumpFinder::checkLimits() const {
    if (errors_ > kMaxErrors) {
        throw DumpError(kNoDump, "it is broken in more than 100000 places");
    }
    if (xmlDictGetUsage(parser_->dict) > kMaxBytesOfNames) {
        throw DumpError(kNoDump, "it uses more names than any exported document");
    }
    if (state_ == State::kBefore && bytesRead_ > kMaxBytesBeforeDump) {
        throw DumpError(kNoDump, "it holds no dump in its first 64 MiB");
    }
}

}  // namespace

Payload readDumpElement(const std::string& path) { return DumpFinder(path).find(); }

}  // namespace host
