// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The paper look of the history window and its group editor: colours and type. Main thread only. Sizes are in points
/// of the desktop and fixed, whatever text size the system is set to.
class Paper : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor background READ background CONSTANT)
    Q_PROPERTY(QColor primary READ primary CONSTANT)
    Q_PROPERTY(QColor secondary READ secondary CONSTANT)
    Q_PROPERTY(QColor accent READ accent CONSTANT)
    Q_PROPERTY(QColor divider READ divider CONSTANT)
    Q_PROPERTY(QColor faded READ faded CONSTANT)

public:
    using QObject::QObject;

    static QColor background();
    static QColor primary();
    static QColor secondary();
    static QColor accent();
    /// Rules.
    static QColor divider();
    /// Chips that are not selected.
    static QColor faded();

    /// Registers the files "*.ttf" of the folder "Fonts" in the resource folder, for this process. What can't be read
    /// or registered is passed over. To be called once, before a view is made.
    static void registerFonts(const QString &resourceFolder);

    /// The display face is there: a font whose PostScript name is "Fraunces72pt-Regular" has been registered.
    static bool hasFraunces();

    /// The display face, black and italic; without it the nearest serif of the system.
    Q_INVOKABLE static QFont black(int size);
    Q_INVOKABLE static QFont italic(int size);
    /// The italic for numbers standing alone: where the nearest serif has old-style figures, one without. Their "1" is
    /// easily taken for a letter.
    Q_INVOKABLE static QFont italicFigures(int size);
    /// Running text.
    Q_INVOKABLE static QFont sans(int size, qreal letterSpacing = 0);
    /// Labels and buttons.
    Q_INVOKABLE static QFont sansMedium(int size, qreal letterSpacing = 0);
};
