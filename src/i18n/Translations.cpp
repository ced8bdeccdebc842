// SPDX-License-Identifier: MIT
#include "i18n/Translations.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

void load(const QLocale &locale)
{
    auto catalogue = std::make_unique<QTranslator>();
    if (catalogue->load(locale, u"quillo"_s, u"_"_s, u":/i18n"_s)) {
        QCoreApplication::installTranslator(catalogue.get());
        catalogue.release()->setParent(QCoreApplication::instance());
    }
}

} // namespace

void Translations::install(const QString &language)
{
    load(QLocale(u"en"_s));
    load(language.isEmpty() ? QLocale::system() : QLocale(language));
}
