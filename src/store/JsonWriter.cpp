// SPDX-License-Identifier: MIT
#include "store/JsonWriter.h"

#include <QStringEncoder>

#include <algorithm>

namespace {

bool needsEscape(char byte)
{
    return static_cast<unsigned char>(byte) < 0x20 || byte == '"' || byte == '\\';
}

QByteArray escaped(char byte)
{
    switch (byte) {
    case '"':
        return QByteArrayLiteral("\\\"");
    case '\\':
        return QByteArrayLiteral("\\\\");
    case '\n':
        return QByteArrayLiteral("\\n");
    case '\r':
        return QByteArrayLiteral("\\r");
    case '\t':
        return QByteArrayLiteral("\\t");
    default:
        return "\\u00" + QByteArray::number(static_cast<unsigned char>(byte), 16).rightJustified(2, '0');
    }
}

} // namespace

JsonWriter &JsonWriter::raw(QByteArrayView json)
{
    m_bytes.append(json);
    return *this;
}

JsonWriter &JsonWriter::string(QStringView text)
{
    QStringEncoder toUtf8(QStringEncoder::Utf8);
    const qsizetype start = m_bytes.size() + 1;
    m_bytes.append('"');
    m_bytes.resize(start + toUtf8.requiredSpace(text.size()));
    const char *const end = toUtf8.appendToBuffer(m_bytes.data() + start, text);
    m_bytes.resize(end - m_bytes.constData());

    // Dictated text seldom holds anything to escape, so the common case is the one pass of the search.
    for (qsizetype i = start; i < m_bytes.size(); ++i) {
        const auto *const found = std::find_if(m_bytes.cbegin() + i, m_bytes.cend(), needsEscape);
        if (found == m_bytes.cend()) {
            break;
        }
        i = found - m_bytes.cbegin();
        const QByteArray replacement = escaped(*found);
        m_bytes.replace(i, 1, replacement);
        i += replacement.size() - 1;
    }
    m_bytes.append('"');
    return *this;
}
