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
    Explanation{"copies", QT_TRANSLATE_NOOP("Explanation", "The number of copies to print.")},
    Explanation{"Collate",
                QT_TRANSLATE_NOOP(
                    "Explanation",
                    "Prints each complete copy before the next one, so that the pages need no sorting.")},
    Explanation{"page-ranges",
                QT_TRANSLATE_NOOP(
                    "Explanation",
                    "The pages to print. Separate single pages and ranges with commas, for example 1-3, 8.")},
    Explanation{"job-name", QT_TRANSLATE_NOOP("Explanation",
                                              "What the job is called at the printer and in lists of jobs.")},
    Explanation{"job-hold-until",
                QT_TRANSLATE_NOOP("Explanation",
                                  "When the print server sends the job to the printer. "
                                  "A job that waits for its release is released in the list of jobs.")},
    Explanation{"job-priority",
                QT_TRANSLATE_NOOP("Explanation", "Jobs of a higher priority are printed first.")},
    Explanation{"job-sheets",
                QT_TRANSLATE_NOOP("Explanation", "A sheet with the names of the job and its owner, "
                                                 "printed before or after the document.")},
    Explanation{
        "job-billing",
        QT_TRANSLATE_NOOP("Explanation",
                          "A text that is recorded with the job, for example a project or a customer.")},
    Explanation{"job-password",
                QT_TRANSLATE_NOOP("Explanation",
                                  "The printer keeps the job until this password is entered at "
                                  "its control panel. It is not stored.")},
    Explanation{"job-account-id",
                QT_TRANSLATE_NOOP("Explanation",
                                  "The account that the printer charges for the job. It is not stored.")},
    Explanation{"job-accounting-user-id",
                QT_TRANSLATE_NOOP("Explanation", "Your name or number for the account. It is not stored.")},
    Explanation{"PageSize",
                QT_TRANSLATE_NOOP("Explanation", "The size of the paper to print on. Paper of this size must "
                                                 "be loaded in one of the printer’s trays.")},
    Explanation{"MediaType",
                QT_TRANSLATE_NOOP(
                    "Explanation",
                    "The type of paper. The printer feeds and heats heavy or coated paper differently.")},
    Explanation{"InputSlot", QT_TRANSLATE_NOOP("Explanation", "The tray that the paper is taken from.")},
    Explanation{"Duplex",
                QT_TRANSLATE_NOOP(
                    "Explanation",
                    "Prints on both sides of the paper. Choose the long edge for pages that turn like those "
                    "of a book, the short edge for pages that turn like those of a wall calendar.")},
    Explanation{
        "print-color-mode",
        QT_TRANSLATE_NOOP("Explanation", "Whether the pages are printed in color or in black and white.")},
    Explanation{
        "number-up",
        QT_TRANSLATE_NOOP(
            "Explanation",
            "The number of document pages on one side of the paper. The pages are scaled down to fit.")},
    Explanation{
        "number-up-layout",
        QT_TRANSLATE_NOOP("Explanation", "The order in which several pages are arranged on one side.")},
    Explanation{"page-border", QT_TRANSLATE_NOOP("Explanation", "A line around each page on the paper.")},
    Explanation{"orientation-requested",
                QT_TRANSLATE_NOOP("Explanation", "Prints the pages upright or sideways. “As in the document” "
                                                 "keeps the orientation of each page.")},
    Explanation{"print-scaling",
                QT_TRANSLATE_NOOP("Explanation",
                                  "Scales the pages to fit the paper, or keeps their size. At actual "
                                  "size, whatever does not fit on the paper is cut off.")},
    Explanation{"natural-scaling",
                QT_TRANSLATE_NOOP("Explanation",
                                  "Enlarges or reduces each page about its center, in percent of its natural "
                                  "size. Whatever does not fit on the page is cut off.")},
    Explanation{"page-set",
                QT_TRANSLATE_NOOP("Explanation", "Prints only every other page, for example to print on both "
                                                 "sides by hand: first the odd pages, then the even pages.")},
    Explanation{"outputorder",
                QT_TRANSLATE_NOOP("Explanation", "Prints the last page first, so that the pages are in order "
                                                 "when the printer stacks them face up.")},
    Explanation{"booklet",
                QT_TRANSLATE_NOOP("Explanation", "Arranges the pages for sheets that are folded together in "
                                                 "the middle: two pages on each side, four on each sheet.")},
    Explanation{
        "saddle-stitch",
        QT_TRANSLATE_NOOP("Explanation", "Folds the sheets of a booklet and staples them in the fold.")},
    Explanation{"mirror", QT_TRANSLATE_NOOP("Explanation",
                                            "Prints each page reversed from left to right, for example on "
                                            "transfer paper.")},
    Explanation{"all-pages", QT_TRANSLATE_NOOP("Explanation", "Prints the whole document.")},
    Explanation{"current-page",
                QT_TRANSLATE_NOOP("Explanation", "Prints only the page that the application shows.")},
    Explanation{"selection",
                QT_TRANSLATE_NOOP("Explanation", "Prints only what is selected in the application.")},
    Explanation{"documents",
                QT_TRANSLATE_NOOP(
                    "Explanation",
                    "The files to print, in this order. Clear the check box of a file to leave it out.")},
    Explanation{
        "save-pdf",
        QT_TRANSLATE_NOOP(
            "Explanation",
            "Saves the pages to a PDF file as they would be printed. Nothing is sent to the printer.")},
    Explanation{
        "preview",
        QT_TRANSLATE_NOOP("Explanation",
                          "Shows the pages as they will be printed. Select a thumbnail to show its page.")},
    Explanation{
        "custom",
        QT_TRANSLATE_NOOP("Explanation",
                          "A value that you enter yourself. The line below shows what the printer accepts.")},
    Explanation{
        "printer",
        QT_TRANSLATE_NOOP(
            "Explanation",
            "The printer that the document is sent to. You can search the list by name or location.")},
    Explanation{"presets",
                QT_TRANSLATE_NOOP("Explanation", "Applies a preset, the settings used last or the printer’s "
                                                 "defaults, and saves the current settings as a preset.")},
    Explanation{"pages", QT_TRANSLATE_NOOP(
                             "Explanation",
                             "The pages of this dialog. A diamond marks each page with changed settings.")},
    Explanation{"cancel",
                QT_TRANSLATE_NOOP("Explanation", "Closes this window. Nothing more is sent to the printer.")},
    Explanation{"print",
                QT_TRANSLATE_NOOP("Explanation",
                                  "Sends the document to the printer with the settings of all pages.")},
    Explanation{"cancel-job",
                QT_TRANSLATE_NOOP("Explanation",
                                  "Cancels the job. Pages that are printed already remain in the printer.")},
    Explanation{"hold-job",
                QT_TRANSLATE_NOOP("Explanation", "Keeps the job at the print server until you release it.")},
    Explanation{"print-again",
                QT_TRANSLATE_NOOP("Explanation", "Sends the same documents again with the same settings.")},
    Explanation{"preset-name",
                QT_TRANSLATE_NOOP(
                    "Explanation",
                    "The name of the preset. Other programs offer the preset under this name as well.")},
    Explanation{
        "preset-secrets",
        QT_TRANSLATE_NOOP("Explanation",
                          "Saves passwords and codes with the preset, so that you need not enter them each "
                          "time. Do not use this on a computer that you share with others.")},
    Explanation{"preset-save",
                QT_TRANSLATE_NOOP(
                    "Explanation",
                    "Saves the settings of all pages as a preset. A preset of the same name is replaced.")},
    Explanation{"preset-rename",
                QT_TRANSLATE_NOOP("Explanation", "Renames the preset, in other programs as well.")},
    Explanation{"preset-delete",
                QT_TRANSLATE_NOOP(
                    "Explanation",
                    "Deletes the preset, in other programs as well. The current settings do not change.")},
    Explanation{"preset-cancel",
                QT_TRANSLATE_NOOP("Explanation", "Closes this dialog without changing any preset.")},
    Explanation{
        "login-user",
        QT_TRANSLATE_NOOP(
            "Explanation",
            "Your user name on the print server. It may differ from your user name on this computer.")},
    Explanation{"login-password", QT_TRANSLATE_NOOP("Explanation", "Your password on the print server.")},
    Explanation{"login-ok", QT_TRANSLATE_NOOP("Explanation", "Logs in to the print server.")},
    Explanation{
        "login-cancel",
        QT_TRANSLATE_NOOP("Explanation",
                          "Continues without a password. The print server may then refuse the request.")},
    Explanation{"only-changes",
                QT_TRANSLATE_NOOP("Explanation", "Shows only the settings that differ from the printer’s "
                                                 "defaults or the preset, with their previous values.")},
    Explanation{"more",
                QT_TRANSLATE_NOOP(
                    "Explanation",
                    "Further options of this printer, with the names that its manufacturer gave them.")},
    Explanation{"give-up", QT_TRANSLATE_NOOP("Explanation", "Stops waiting. Your settings are kept.")},
    Explanation{"try-again", QT_TRANSLATE_NOOP("Explanation", "Asks the printer or the print server again.")},
    Explanation{"close-help", QT_TRANSLATE_NOOP("Explanation", "Goes back to the settings.")},
    Explanation{"find", QT_TRANSLATE_NOOP("Explanation", "Finds a setting on any page by its name.")},
    Explanation{"help", QT_TRANSLATE_NOOP("Explanation", "Explains the settings of this page.")},
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
