// SPDX-License-Identifier: MIT
#include "service/Multipart.h"

#include <QUuid>

Multipart::Multipart(const QString &fileName, const QByteArray &recording)
    : m_boundary("qlo-" + QUuid::createUuid().toByteArray(QUuid::WithoutBraces).toUpper())
{
    m_body = "--" + m_boundary + "\r\nContent-Disposition: form-data; name=\"file\"; filename=\"" + fileName.toUtf8() +
             "\"\r\nContent-Type: audio/mp4\r\n\r\n" + recording + "\r\n--" + m_boundary + "--\r\n";
}
