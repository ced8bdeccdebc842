// SPDX-License-Identifier: MIT
#include "support/Secrets.h"

#include <QCryptographicHash>
#include <QRandomGenerator>

QByteArray randomToken(int bytes)
{
    QByteArray random(bytes, Qt::Uninitialized);
    QRandomGenerator::system()->generate(random.begin(), random.end());
    return random.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
}

QByteArray hashOfSecret(const QByteArray &secret)
{
    return QCryptographicHash::hash(secret, QCryptographicHash::Sha256);
}

bool equalInConstantTime(const QByteArray &left, const QByteArray &right)
{
    if (left.size() != right.size()) {
        return false;
    }
    volatile unsigned char difference = 0;
    for (qsizetype i = 0; i < left.size(); ++i) {
        difference = difference | static_cast<unsigned char>(left[i] ^ right[i]);
    }
    return difference == 0;
}
