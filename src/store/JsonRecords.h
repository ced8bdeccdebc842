// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QVarLengthArray>

#include <functional>
#include <optional>

/// One object of a JSON array, as far as the program is interested: its texts and its nulls. What else it holds,
/// numbers beyond every range among them, is read over.
class JsonRecord {
public:
    /// Nothing when the member is absent or no text.
    std::optional<QString> string(QAnyStringView name) const;

    /// The text or null, either of which an absent member stands for; false for anything else.
    bool isStringOrNull(QAnyStringView name) const;

private:
    friend class JsonRecordHandler;

    struct Member {
        QString name;
        std::optional<QString> text = std::nullopt;
        bool isNull = false;
    };

    const Member *find(QAnyStringView name) const;

    QVarLengthArray<Member, 8> m_members;
};

/// Takes one record; false refuses it.
using JsonRecordTaker = std::function<bool(const JsonRecord &)>;

/// Hands over the elements of an array in UTF-8, in order. False when the text is no array of objects, is damaged, or
/// an element is refused; nothing that was handed over counts then.
bool readJsonRecords(QByteArrayView json, const JsonRecordTaker &take);

/// Hands over every object that can still be read in a damaged text. Bytes that are no UTF-8 become U+FFFD.
void salvageJsonRecords(QByteArray json, const JsonRecordTaker &take);
