#include "xml_check.h"

#include <cctype>
#include <stdexcept>

namespace hosttest {

namespace {

class XmlReader {
  public:
    explicit XmlReader(const std::string &doc) : doc_(doc) {}

    std::vector<XmlElement> Read() {
        Skip("<?xml", "?>");
        bool rootSeen = false;
        while (pos_ < doc_.size()) {
            if (Starts("<!--")) {
                Skip("<!--", "-->");
            } else if (Starts("</")) {
                CloseTag();
            } else if (Starts("<")) {
                if (open_.empty() && rootSeen)
                    Fail("a second root element");
                rootSeen = true;
                OpenTag();
            } else {
                std::string text = Text('<');
                if (open_.empty() && text.find_first_not_of(" \t\r\n") != std::string::npos)
                    Fail("text outside the root element");
                if (!open_.empty())
                    elements_[open_.back()].text += text;
            }
        }
        if (!open_.empty())
            Fail("<" + elements_[open_.back()].name + "> is never closed");
        if (!rootSeen)
            Fail("no root element");
        return elements_;
    }

  private:
    [[noreturn]] void Fail(const std::string &what) const {
        throw std::runtime_error("XML at byte " + std::to_string(pos_) + ": " + what);
    }
    bool Starts(const char *s) const { return doc_.compare(pos_, std::char_traits<char>::length(s), s) == 0; }
    void Skip(const char *begin, const char *end) {
        if (!Starts(begin))
            return;
        size_t stop = doc_.find(end, pos_);
        if (stop == std::string::npos)
            Fail(std::string("no ") + end);
        pos_ = stop + std::char_traits<char>::length(end);
    }
    void Spaces() {
        while (pos_ < doc_.size() && std::isspace(static_cast<unsigned char>(doc_[pos_])))
            ++pos_;
    }
    std::string Name() {
        size_t start = pos_;
        while (pos_ < doc_.size() && (std::isalnum(static_cast<unsigned char>(doc_[pos_])) ||
                                      std::string_view("-_:.").find(doc_[pos_]) != std::string_view::npos))
            ++pos_;
        if (pos_ == start)
            Fail("a name is missing");
        return doc_.substr(start, pos_ - start);
    }
    // Characters up to `stop`, with entities replaced; a bare '<' or '&' fails.
    std::string Text(char stop) {
        std::string out;
        while (pos_ < doc_.size() && doc_[pos_] != stop) {
            char c = doc_[pos_];
            if (c == '<')
                Fail("a bare '<'");
            if (c != '&') {
                out += c;
                ++pos_;
                continue;
            }
            size_t semi = doc_.find(';', pos_);
            const std::string entity = semi == std::string::npos ? "" : doc_.substr(pos_, semi + 1 - pos_);
            static const std::map<std::string, char> known = {
                {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''}};
            auto it = known.find(entity);
            if (it == known.end())
                Fail("a bare '&' or an unknown entity");
            out += it->second;
            pos_ = semi + 1;
        }
        return out;
    }
    void OpenTag() {
        ++pos_;
        XmlElement e;
        e.name = Name();
        for (;;) {
            Spaces();
            if (Starts("/>") || Starts(">"))
                break;
            std::string key = Name();
            Spaces();
            if (!Starts("=\"") && !Starts("='"))
                Fail("attribute " + key + " has no quoted value");
            const char quote = doc_[pos_ + 1];
            pos_ += 2;
            std::string value = Text(quote);
            if (pos_ >= doc_.size())
                Fail("attribute " + key + " is never closed");
            ++pos_;
            if (!e.attributes.emplace(key, value).second)
                Fail("attribute " + key + " twice");
        }
        const bool empty = Starts("/>");
        pos_ += empty ? 2 : 1;
        elements_.push_back(std::move(e));
        if (!empty)
            open_.push_back(elements_.size() - 1);
    }
    void CloseTag() {
        pos_ += 2;
        std::string name = Name();
        Spaces();
        if (!Starts(">"))
            Fail("</" + name + " has no '>'");
        ++pos_;
        if (open_.empty() || elements_[open_.back()].name != name)
            Fail("</" + name + "> closes nothing open");
        open_.pop_back();
    }

    const std::string &doc_;
    size_t pos_ = 0;
    std::vector<XmlElement> elements_;
    std::vector<size_t> open_; // indices of the open elements, innermost last
};

} // namespace

std::vector<XmlElement> ParseXml(const std::string &document) { return XmlReader(document).Read(); }

} // namespace hosttest
