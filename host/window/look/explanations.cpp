// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/explanations.h"

#include <QCoreApplication>

#include <array>

namespace host {

namespace {

struct Explanation
{
    Q_DECLARE_TR_FUNCTIONS(Explanation)
public:
    const char *setting;
    const char *text;
};

constexpr std::array explanations{
    Explanation{"copies", QT_TRANSLATE_NOOP("Explanation", "How many times the document is printed.")},
    Explanation{"Collate",
                QT_TRANSLATE_NOOP("Explanation", "Prints each copy whole before the next one begins, so that "
                                                 "nobody has to sort the pages.")},
    Explanation{"page-ranges",
                QT_TRANSLATE_NOOP("Explanation", "Which pages are printed. List single pages and ranges with "
                                                 "commas between them, such as 1-3, 8.")},
    Explanation{"job-name", QT_TRANSLATE_NOOP("Explanation",
                                              "What the job is called at the printer and in lists of jobs.")},
    Explanation{"PageSize",
                QT_TRANSLATE_NOOP("Explanation",
                                  "The size of the paper that the pages are printed on. It has to "
                                  "be in one of the printer’s trays.")},
    Explanation{"MediaType", QT_TRANSLATE_NOOP("Explanation",
                                               "What the paper is like. The printer feeds and heats heavy or "
                                               "coated paper differently.")},
    Explanation{"InputSlot", QT_TRANSLATE_NOOP("Explanation", "The tray that the paper is taken from.")},
    Explanation{"Duplex", QT_TRANSLATE_NOOP("Explanation",
                                            "Prints on both sides of the paper. The long edge is for pages "
                                            "that are turned like a book, the short edge for those turned "
                                            "like a calendar.")},
    Explanation{"number-up",
                QT_TRANSLATE_NOOP("Explanation", "How many pages of the document are put on one side of the "
                                                 "paper. They are made smaller to fit.")},
    Explanation{
        "number-up-layout",
        QT_TRANSLATE_NOOP("Explanation", "In which order the pages lie when several are put on one side.")},
    Explanation{"page-border", QT_TRANSLATE_NOOP("Explanation", "A line around each page on the paper.")},
    Explanation{"orientation-requested",
                QT_TRANSLATE_NOOP("Explanation", "Whether the pages are printed upright or sideways. “As in "
                                                 "the document” leaves that to the document.")},
    Explanation{"print-scaling",
                QT_TRANSLATE_NOOP("Explanation",
                                  "Whether pages are made larger or smaller until they fit the paper, "
                                  "or keep their size. What does not fit at that size is cut off.")},
    Explanation{"page-set",
                QT_TRANSLATE_NOOP("Explanation", "Prints every other page only, such as to print on both "
                                                 "sides by hand: first the odd pages, then the even ones.")},
    Explanation{"outputorder",
                QT_TRANSLATE_NOOP("Explanation", "Prints from the end, so that the pages lie in order where "
                                                 "the printer puts each face up on the one before.")},
    Explanation{"all-pages", QT_TRANSLATE_NOOP("Explanation", "Prints the whole document.")},
    Explanation{"current-page",
                QT_TRANSLATE_NOOP("Explanation", "Prints only the page that the program shows.")},
    Explanation{"selection",
                QT_TRANSLATE_NOOP("Explanation", "Prints only what is selected in the program.")},
    Explanation{"documents",
                QT_TRANSLATE_NOOP(
                    "Explanation",
                    "The files that are printed, in this order. A file without a check mark is left out.")},
    Explanation{
        "save-pdf",
        QT_TRANSLATE_NOOP(
            "Explanation",
            "Writes the pages as they would be printed into a PDF file. Nothing is sent to the printer.")},
    Explanation{"preview",
                QT_TRANSLATE_NOOP("Explanation", "What comes out of the printer, as far as it is known here. "
                                                 "Choose a small page to see it large.")},
    Explanation{"custom",
                QT_TRANSLATE_NOOP("Explanation",
                                  "A choice of your own. The line below it says what the printer takes.")},
    Explanation{
        "printer",
        QT_TRANSLATE_NOOP(
            "Explanation",
            "The printer that the document is sent to. Its list can be searched for a name or a place.")},
    Explanation{"presets",
                QT_TRANSLATE_NOOP("Explanation", "Settings kept under a name, those used last, and the "
                                                 "printer’s own. Choose them here, or keep those of now.")},
    Explanation{"pages",
                QT_TRANSLATE_NOOP(
                    "Explanation",
                    "The pages of this dialog. A diamond marks those on which something has been changed.")},
    Explanation{"cancel",
                QT_TRANSLATE_NOOP("Explanation",
                                  "Closes this window. What has not been sent by then is not printed.")},
    Explanation{"print",
                QT_TRANSLATE_NOOP("Explanation",
                                  "Sends the document to the printer with the settings of all pages.")},
    Explanation{
        "cancel-job",
        QT_TRANSLATE_NOOP("Explanation", "Stops the job. Pages that have been printed by then are there.")},
    Explanation{"hold-job", QT_TRANSLATE_NOOP("Explanation",
                                              "Lets the job wait at the print server until you release it.")},
    Explanation{
        "print-again",
        QT_TRANSLATE_NOOP("Explanation", "Sends the same documents once more with the same settings.")},
    Explanation{"preset-name",
                QT_TRANSLATE_NOOP("Explanation",
                                  "What the settings are kept under. Other programs offer them "
                                  "under this name as well.")},
    Explanation{"preset-secrets",
                QT_TRANSLATE_NOOP("Explanation", "Keeps what is otherwise asked for anew each time. Leave it "
                                                 "out where others use this computer.")},
    Explanation{"preset-save",
                QT_TRANSLATE_NOOP("Explanation", "Keeps the settings of all pages under the name. Those of a "
                                                 "preset that has it already are replaced.")},
    Explanation{"preset-rename",
                QT_TRANSLATE_NOOP("Explanation", "Gives the preset this name, also in other programs.")},
    Explanation{"preset-delete",
                QT_TRANSLATE_NOOP("Explanation",
                                  "Takes the preset away, also from other programs. What is set "
                                  "in this dialog stays as it is.")},
    Explanation{"preset-cancel",
                QT_TRANSLATE_NOOP("Explanation", "Closes this question. The presets stay as they are.")},
    Explanation{"login-user",
                QT_TRANSLATE_NOOP("Explanation",
                                  "The name that the print server knows you by. It may be another than "
                                  "the one on this computer.")},
    Explanation{"login-password",
                QT_TRANSLATE_NOOP("Explanation", "The password that belongs to the user name on the print "
                                                 "server.")},
    Explanation{"login-ok", QT_TRANSLATE_NOOP("Explanation", "Tells the print server who you are.")},
    Explanation{"login-cancel",
                QT_TRANSLATE_NOOP("Explanation", "Goes on without. The print server may refuse what it asked "
                                                 "the password for.")},
    Explanation{"only-changes",
                QT_TRANSLATE_NOOP("Explanation",
                                  "Leaves out what stands as the printer or the preset has it, "
                                  "and tells what the rest was before.")},
    Explanation{"more", QT_TRANSLATE_NOOP("Explanation",
                                          "What this printer offers beside the other pages, in the words of "
                                          "its maker.")},
    Explanation{"give-up", QT_TRANSLATE_NOOP("Explanation",
                                             "Stops what is under way. Nothing that you have set is lost.")},
    Explanation{"try-again", QT_TRANSLATE_NOOP("Explanation", "Asks the printer or the print server anew.")},
    Explanation{"close-help", QT_TRANSLATE_NOOP("Explanation", "Goes back to the settings.")},
    Explanation{"find", QT_TRANSLATE_NOOP("Explanation", "Looks for a setting on all pages by its name.")},
    Explanation{"help", QT_TRANSLATE_NOOP("Explanation", "Shows what the settings of this page are for.")},
};

} // namespace

QString explanationOf(const QString &setting)
{
    for (const Explanation &explanation : explanations) {
        if (setting == QLatin1String(explanation.setting))
            return Explanation::tr(explanation.text);
    }
    return {};
}

} // namespace host
