// SPDX-License-Identifier: MIT
#include "store/JsonRecords.h"

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <cctype>
#include <cstring>

namespace {

// No number is of interest, and nesting costs no stack.
constexpr unsigned readingFlags = rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseIterativeFlag;

/// The parser refuses numbers that no `double` holds, wanted or not; zero and blanks take the place of one at `start`.
void blankNumber(QByteArray &json, qsizetype start)
{
    const auto isOfNumber = [](char byte) { return std::isdigit(uchar(byte)) != 0 || std::strchr("+-.eE", byte); };
    const auto begin = json.begin() + start;
    const auto end = std::find_if_not(begin, json.end(), isOfNumber);
    std::fill(begin, end, ' ');
    *begin = '0';
}

} // namespace

/// Follows the events of the parser through one array of objects, or through one object alone.
class JsonRecordHandler : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, JsonRecordHandler> {
public:
    enum class Root { Array, Object };

    /// The first `known` records are not handed over.
    JsonRecordHandler(Root root, const JsonRecordTaker &take, qsizetype known = 0)
        : m_take(take), m_known(known), m_depth(root == Root::Array ? 0 : 1)
    {
    }

    qsizetype ended() const { return m_ended; }

    bool Default() { return value({}, false); } // NOLINT(readability-identifier-naming): the parser's names
    bool Null() { return value({}, true); }
    bool RawNumber(const char * /*digits*/, rapidjson::SizeType /*length*/, bool /*copy*/) { return Default(); }
    bool String(const char *bytes, rapidjson::SizeType length, bool /*copy*/)
    {
        return value(isMember() ? std::optional(QString::fromUtf8(bytes, length)) : std::nullopt, false);
    }

    bool StartObject()
    {
        if (m_depth == 1) {
            m_record.m_members.clear();
        }
        return m_depth != 0 && begin();
    }
    bool Key(const char *bytes, rapidjson::SizeType length, bool /*copy*/)
    {
        if (isMember()) {
            m_record.m_members.append({QString::fromUtf8(bytes, length)});
        }
        return true;
    }
    bool EndObject(rapidjson::SizeType /*count*/)
    {
        if (--m_depth != 1) {
            return true;
        }
        ++m_ended;
        return m_ended <= m_known || m_take(m_record);
    }

    bool StartArray() { return m_depth != 1 && begin(); }
    bool EndArray(rapidjson::SizeType /*count*/)
    {
        --m_depth;
        return true;
    }

private:
    static constexpr int memberDepth = 2;

    bool isMember() const { return m_depth == memberDepth; }

    bool begin()
    {
        ++m_depth;
        return true;
    }

    bool value(std::optional<QString> text, bool isNull)
    {
        if (isMember()) {
            m_record.m_members.last().text = std::move(text);
            m_record.m_members.last().isNull = isNull;
        }
        return m_depth >= memberDepth; // neither the file nor an element is a bare value
    }

    const JsonRecordTaker &m_take;
    JsonRecord m_record;
    qsizetype m_known;
    qsizetype m_ended = 0;
    int m_depth;
};

std::optional<QString> JsonRecord::string(QAnyStringView name) const
{
    const Member *const member = find(name);
    return member != nullptr ? member->text : std::nullopt;
}

bool JsonRecord::isStringOrNull(QAnyStringView name) const
{
    const Member *const member = find(name);
    return member == nullptr || member->text || member->isNull;
}

const JsonRecord::Member *JsonRecord::find(QAnyStringView name) const
{
    // Of members with one name the last counts, as everywhere.
    const auto found = std::find_if(m_members.crbegin(), m_members.crend(),
                                    [&](const Member &member) { return name == QAnyStringView(member.name); });
    return found == m_members.crend() ? nullptr : &*found;
}

bool readJsonRecords(QByteArrayView json, const JsonRecordTaker &take)
{
    constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF"); // some editors begin a file with it
    if (json.startsWith(byteOrderMark)) {
        json = json.sliced(byteOrderMark.size());
    }
    QByteArray mended;
    for (qsizetype known = 0;;) {
        rapidjson::MemoryStream stream(json.data(), size_t(json.size()));
        JsonRecordHandler handler(JsonRecordHandler::Root::Array, take, known);
        rapidjson::Reader reader;
        const rapidjson::ParseResult result =
            reader.Parse<readingFlags | rapidjson::kParseValidateEncodingFlag>(stream, handler);
        if (result.Code() != rapidjson::kParseErrorNumberTooBig) {
            return !result.IsError();
        }
        known = handler.ended();
        mended = json.toByteArray();
        blankNumber(mended, qsizetype(result.Offset()));
        json = mended;
    }
}

void salvageJsonRecords(QByteArray json, const JsonRecordTaker &take)
{
    for (qsizetype start = json.indexOf('{'); start >= 0; start = json.indexOf('{', start)) {
        rapidjson::MemoryStream stream(json.constData() + start, size_t(json.size() - start));
        JsonRecordHandler handler(JsonRecordHandler::Root::Object, take);
        rapidjson::Reader reader;
        const rapidjson::ParseResult result =
            reader.Parse<readingFlags | rapidjson::kParseStopWhenDoneFlag>(stream, handler);
        if (result.Code() == rapidjson::kParseErrorNumberTooBig) {
            blankNumber(json, start + qsizetype(result.Offset()));
        } else {
            start += result.IsError() ? 1 : qsizetype(stream.Tell());
        }
    }
}
