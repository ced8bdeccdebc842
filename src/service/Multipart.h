// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// A multipart/form-data body with one part: a recording under the name "file".
class Multipart {
public:
    /// `fileName` goes into the part's header as it is, in UTF-8.
    Multipart(const QString &fileName, const QByteArray &recording);

    const QByteArray &body() const { return m_body; }
    QByteArray contentType() const { return "multipart/form-data; boundary=" + m_boundary; }

private:
    /// "qlo-" and a fresh random UUID: 40 characters that no recording contains.
    QByteArray m_boundary;
    QByteArray m_body;
};
