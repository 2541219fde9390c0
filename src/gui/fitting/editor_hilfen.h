// What the views of the two data editors share: their buttons and number fields, the heads of the
// grid's number and mark columns, and closing an editor with its window in the work area.
#pragma once

#include <QString>
#include <QStringList>

#include <string>

class QLineEdit;
class QPushButton;
class QTableView;
class QWidget;

namespace quor::ui {

// "#" and "aus": the head "  #     aus" of the number and mark columns, one word per column.
QStringList MarkKoepfe();

// A command button that keeps out of the Enter key's way.
QPushButton* BefehlsKnopf(const char* name, const QString& text, const QString& tipp, QWidget* eltern);
// The button that takes the input row over ("+" does the same).
QPushButton* OKKnopf(QWidget* eltern);
// An input field for a number, its text to the right.
QLineEdit* ZahlFeld(const char* name, QWidget* eltern);

// A caption of the logic with its line ends CR LF as the toolkit breaks a line.
QString Zeilen(const char* text);
// Sets the field's text only when it differs, so that the cursor of a field being typed in stays.
void TextSetzen(QLineEdit* feld, const std::string& text);
// The number and mark columns narrow, the data columns sharing the width, at least `breite` each.
void SpaltenBreiten(QTableView* tabelle, int breite);

// Closes the editor: its window in the work area when it has one, which asks the editor first.
void FensterSchliessen(QWidget* editor);

} // namespace quor::ui
