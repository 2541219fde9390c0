// private-db: the substance data editor without its window. The substance's fields are filled,
// --set changes some of them ("DD=VALUE", the editor's field numbers), and the editor takes them
// over and writes the private database of the one substance to --out, answering its save dialog.
#include "cli/ausgabe.h"
#include "cli/befehle.h"
#include "cli/fehler.h"
#include "substance/bank_editor.h"

#include <ostream>
#include <sstream>

namespace quor::cli {

namespace {

// "DD=VALUE,DD=VALUE": the fields and their texts.
std::vector<std::pair<int, std::string>> Felder(const std::string& text) {
  std::vector<std::pair<int, std::string>> felder;
  std::stringstream liste(text);
  std::string paar;
  while (std::getline(liste, paar, ',')) {
    const std::size_t gleich = paar.find('=');
    int index = -1;
    try {
      if (gleich != std::string::npos && gleich > 0) index = std::stoi(paar.substr(0, gleich));
    } catch (const std::exception&) {
      index = -1;
    }
    if (index < 0 || !BankFeldVon(index))
      throw Eingabefehler("--set " + paar + ": expected FIELD=VALUE with a field number of the data editor");
    felder.emplace_back(index, paar.substr(gleich + 1));
  }
  return felder;
}

} // namespace

int BefehlPrivateDb(Sitzung& z, std::ostream& aus, std::ostream& fehler) {
  const auto& text = z.aufruf.Text;
  if (text.count("--out") == 0) throw Eingabefehler("private-db needs --out FILE");
  const auto felder = text.count("--set") != 0 ? Felder(text.at("--set")) : decltype(Felder("")){};
  z.DatenbankOeffnen();
  z.StoffUndModelle();
  frmQBankEdit editor(z.s, z.ui);
  editor.Form_Load();
  for (const auto& [index, wert] : felder)
    editor.FeldGeaendert(index, wert);
  const std::string pfad = AbsoluterPfad(text.at("--out"));
  z.ui.dateien.push_back(pfad);
  const std::size_t vorher = z.ui.Meldungen().size();
  editor.WriteDataBaseQ07();
  const bool geschrieben = z.ui.Meldungen().size() == vorher;
  MeldungenSchreiben(fehler, Meldungen(z.ui, z.Gedruckt, z.ui.protokoll.size()));
  z.Gedruckt = z.ui.protokoll.size();
  if (!geschrieben) return ExitRechnung;
  aus << pfad << ": " << z.s.Stoff.StoffName << " (" << z.s.Stoff.CASRN << ")\n";
  return ExitOK;
}

} // namespace quor::cli
