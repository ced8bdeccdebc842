// SPDX-License-Identifier: MIT
#include "e2e/Desktop.h"

#include <QCoreApplication>
#include <QDir>
#include <QTextStream>
#include <QTimer>

#include <exception>

// One dictation on a desktop of its own, from key press to text in an editor: what happened, how long it took, and
// three pictures of it. The exit status is 0 only if the editor got what the server returned and the clipboard is back.

using namespace Qt::StringLiterals;

namespace {

double milliseconds(Desktop::Instant from, Desktop::Instant to)
{
    return std::chrono::duration<double, std::milli>(to - from).count();
}

void printRow(QTextStream &out, const QString &what, double duration)
{
    out << u"  "_s << what.leftJustified(46) << QString::number(duration, 'f', 1).rightJustified(8) << u" ms\n"_s;
}

void printTimes(QTextStream &out, const Desktop::Dictation &dictation)
{
    const WireTap::Exchange &upload = dictation.upload;
    out << u"From release to text, second dictation:\n"_s;
    printRow(out, u"finalise (release to first byte on the wire)"_s,
             milliseconds(dictation.released, upload.firstRequestByte));
    printRow(out, u"upload"_s, milliseconds(upload.firstRequestByte, upload.lastRequestByte));
    printRow(out, u"engine (upload to reply)"_s, milliseconds(upload.lastRequestByte, upload.lastReplyByte));
    printRow(out, u"mandated waits (modifiers were up by then)"_s, 0);
    printRow(out, u"rest: history saved, clipboard, keystroke"_s,
             milliseconds(upload.lastReplyByte, dictation.keystroke));
    printRow(out, u"rest: editor reads the clipboard and draws"_s,
             milliseconds(dictation.keystroke, dictation.onScreen));
    printRow(out, u"total"_s, milliseconds(dictation.released, dictation.onScreen));
}

/// A moment into the phase, when the voice has set in and the panel has faded in.
void takePicture(const Desktop &desktop, const QString &path, std::chrono::milliseconds wait)
{
    QTimer::singleShot(wait, QCoreApplication::instance(), &QCoreApplication::quit);
    QCoreApplication::exec();
    desktop.screenshot(path);
}

bool demonstrate(QTextStream &out, const QString &folder)
{
    const QByteArray earlier = "what the user had copied before";
    const QString listening = folder + u"/demo-1-listening.png"_s;
    const QString transcribing = folder + u"/demo-2-transcribing.png"_s;
    const QString pasted = folder + u"/demo-3-pasted.png"_s;

    Desktop desktop;
    desktop.setClipboard(earlier);
    out << u"Dictating twice into a text editor with Ctrl+Alt+Space held ...\n"_s << Qt::flush;
    // The pictures are taken in the first dictation, so that they cost the second, measured one nothing.
    const auto first = desktop.dictate(
        Speech::goForward(), [&] { takePicture(desktop, listening, std::chrono::milliseconds(1100)); },
        [&] { takePicture(desktop, transcribing, std::chrono::milliseconds(180)); });
    const bool firstRestored = desktop.awaitClipboard(earlier);
    desktop.screenshot(pasted);
    const auto second = desktop.dictate(Speech::goForward());
    const bool secondRestored = desktop.awaitClipboard(earlier);

    const QString expected = first.text + second.text;
    const QString text = desktop.awaitEditorText(expected);
    out << u"The server returned:  "_s << first.text << u" | "_s << second.text << u"\nThe editor received:  "_s << text
        << u"\nEarlier clipboard:    "_s << (firstRestored && secondRestored ? u"back"_s : u"NOT BACK"_s) << u"\n"_s;
    printTimes(out, second);
    out << u"Pictures:\n  "_s << listening << u"\n  "_s << transcribing << u"\n  "_s << pasted << u"\n"_s;
    return !first.text.isEmpty() && text == expected && firstRestored && secondRestored;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    const QString folder = QDir(QCoreApplication::arguments().value(1, u"."_s)).absolutePath();
    QDir().mkpath(folder);
    try {
        const bool succeeded = demonstrate(out, folder);
        out << (succeeded ? u"The demo succeeded.\n"_s : u"The demo FAILED.\n"_s);
        return succeeded ? 0 : 1;
    } catch (const std::exception &error) {
        out << u"The demo FAILED: "_s << QString::fromLocal8Bit(error.what()) << u"\n"_s;
        return 1;
    }
}
