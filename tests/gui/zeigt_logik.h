// Each window shows its logic's fields: every label, title, option, list and button of a view carries
// the value of the field it stands for. One check per window, run after it has shown its logic, finds
// a widget wired to the wrong field whatever the texts of the case are.
#pragma once

#include "core/daten_diagnose.h"
#include "gui/calc/calc_in_fenster.h"
#include "gui/calc/ergebnis_fenster.h"
#include "gui/calc/parinput_fenster.h"
#include "gui/calc/referenz_fenster.h"
#include "gui/frame/mdi_quor.h"
#include "gui/substance/modell_fenster.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace quor::ui::test {

// The logic's text as a widget shows it: line ends CR LF become LF.
inline QString Q(const std::string& s) {
  return QString::fromStdString(s).replace("\r\n", "\n");
}

inline std::string Name(const QObject* o) {
  return o->objectName().toStdString();
}

// The widget's own flags, whatever its parents say: shown unless hidden, enabled unless disabled.
using Flags = std::vector<std::pair<QWidget*, bool>>;
inline void Sichtbar(const Flags& f) {
  for (const auto& [w, soll] : f)
    EXPECT_EQ(!w->isHidden(), soll) << Name(w);
}
inline void Frei(const Flags& f) {
  for (const auto& [w, soll] : f)
    EXPECT_EQ(!w->testAttribute(Qt::WA_ForceDisabled), soll) << Name(w);
}
inline void An(const std::vector<std::pair<QAbstractButton*, bool>>& f) {
  for (const auto& [w, soll] : f)
    EXPECT_EQ(w->isChecked(), soll) << Name(w) << " " << w->text().toStdString();
}
inline void Texte(const std::vector<std::pair<QString, std::string>>& f) {
  for (const auto& [ist, soll] : f)
    EXPECT_EQ(ist.toStdString(), Q(soll).toStdString());
}

inline void Zeigt(QLabel* l, const SeitenFeld& f, bool da = true) {
  Texte({{l->text(), f.text}, {l->toolTip(), f.tooltip}});
  Sichtbar({{l, f.sichtbar && da}});
}

inline void ZeigtLogik(ErgebnisFenster* w) {
  const frmQCalcOut& l = w->Logik();
  const ErgebnisSeite& s = l.Seite;
  QGroupBox *vorgabe = w->Rahmen("fraBatchVorgabe"), *ausgabe = w->Rahmen("fraResultOutput");
  Zeigt(w->Par(1), s.par1);
  Zeigt(w->Par(2), s.par2);
  Zeigt(w->Co1(), s.co1);
  Zeigt(w->Txtco2(), s.txtco2, l.fraValueVisible);
  Zeigt(w->Gleich(), s.lblGleich);
  Zeigt(w->Identisch(), s.lblIdentisch);
  Zeigt(w->Phase(0), s.lblLphase);
  Zeigt(w->Phase(1), s.lblVphase);
  EXPECT_EQ(w->Liste()->toPlainText(), ErgebnisFenster::ListenText(s.Liste.text));
  QPushButton* ok = w->Knopf("cmdCalc_OK");
  Texte({{w->windowTitle(), l.Caption},
         {vorgabe->title(), l.fraBatchVorgabeCaption},
         {w->ProtText2()->text(), l.lblProtText2},
         {ok->text(), l.cmdCalc_OKCaption},
         {ok->toolTip(), l.cmdCalc_OKToolTip}});
  EXPECT_EQ(w->ProtHinweis()->text(), ErgebnisFenster::HinweisText(l.lblProtHinweis));
  Sichtbar({{vorgabe, l.fraBatchVorgabeVisible},
            {w->Rahmen("fraCalcErweitert"), l.fraCalcErweitertVisible},
            {ausgabe, l.fraResultOutputVisible},
            {w->Rahmen("fraProtokoll"), l.fraProtokollVisible}});
  Frei({{w->Knopf("cmdVor"), l.cmdVorEnabled},
        {w->Knopf("cmdRueck"), l.cmdRueckEnabled},
        {w->UHS(), l.chkUHSEnabled},
        {w->ResPlus(0), l.ResPlusEnabled},
        {w->ResPlus(1), l.ResPlusEnabled},
        {ausgabe, l.fraResultOutputEnabled},
        {w->FuncPrint(), l.chkFuncPrintEnabled},
        {w->Knopf("cmdOpenNew"), l.cmdOpenNewEnabled},
        {w->Knopf("cmdCEOSDiagnose"), l.cmdCEOSDiagnoseEnabled},
        {w->Knopf("cmdInfoSuperCrit"), l.cmdInfoSuperCritEnabled}});
  An({{w->UHS(), l.chkUHS},
      {w->ResPlus(0), l.ResPlus[0]},
      {w->ResPlus(1), l.ResPlus[1]},
      {w->FuncPrint(), l.chkFuncPrint},
      {w->Ausgabe(l.optResultPrint), true}});
}

// Right after opening, before anything is typed: the fields hold the logic's values.
inline void ZeigtLogik(ParinputFenster* w) {
  const frmParinput& l = w->Logik();
  Texte({{w->windowTitle(), l.Caption}, {w->OK()->text(), l.cmdParameter_OKCaption}});
  ASSERT_EQ(w->Anzahl(), static_cast<int>(l.Felder.size()));
  for (int i = 0; i < w->Anzahl(); ++i) {
    const ParinputFeld& f = l.Felder[static_cast<std::size_t>(i)];
    Texte({{w->Bz(i)->text(), f.Bz}, {w->Feld(i)->text(), f.par}});
    Frei({{w->Feld(i), f.enabled}});
  }
  for (int i = 0; i < 2; ++i)
    Texte({{w->RhoV(i)->text(), l.optRhoVTexte[static_cast<std::size_t>(i)]},
           {w->MassOderMenge(i)->text(), l.optm_nTexte[static_cast<std::size_t>(i)]}});
  Sichtbar({{w->RhoV(0)->parentWidget(), l.fraRhoVInputVisible},
            {w->MassOderMenge(0)->parentWidget(), l.optm_nVisible}});
  An({{w->RhoV(l.optRhoV), true}, {w->MassOderMenge(l.optm_n), true}});
}

inline void ZeigtLogik(CalcInFenster* w) {
  const frmCalcIn& l = w->Logik();
  Texte({{w->Situation()->text(), l.Situation},
         {w->GlobalSit()->text(), l.GlobalSit},
         {w->RhoLimits()->text(), l.lblRhoLimits},
         {w->Vorschlag()->text(), l.RefVorschlag}});
  Sichtbar({{w->Partial(), l.PartialSichtbar}});
  Frei({{w->Glob(0), l.opt_globEnabled[0]},
        {w->Glob(1), l.opt_globEnabled[1]},
        {w->Benson(0), l.optPartialBensonEnabled[0]},
        {w->Benson(1), l.optPartialBensonEnabled[1]},
        {w->RefInput(), l.RefInputEnabled}});
  An({{w->Glob(l.opt_glob), true}, {w->Benson(l.optPartialBenson), true}});
  for (int i = 0; i < 3; ++i)
    An({{w->Ref(i), l.Ref_opt == i}});
}

inline void ZeigtLogik(ReferenzFenster* w) {
  const frmReferenz& l = w->Logik();
  for (int i = 0; i < 6; ++i) {
    Texte({{w->Feld(i)->text(), l.T[static_cast<std::size_t>(i)]}});
    Frei({{w->Feld(i), l.T_Enabled[static_cast<std::size_t>(i)]}});
  }
  for (int i = 0; i < 3; ++i)
    Frei({{w->Option(i), l.opt_HNull_Enabled[static_cast<std::size_t>(i)]}});
  An({{w->Option(l.opt_HNull), true}});
  Sichtbar({{w->HinweisPo(), l.HinweisPoVisible}});
}

inline void ZeigtLogik(ModellFenster* w) {
  const frmQModell& l = w->Logik();
  Texte({{w->windowTitle(), l.Caption}});
  const std::pair<QListWidget*, const ModellListe*> listen[] = {{w->EOSListe(), &l.EOS},
                                                                {w->DampfdruckListe(), &l.Dampfdruck},
                                                                {w->HLVListe(), &l.HLV},
                                                                {w->CpListe(), &l.Cp}};
  for (const auto& [liste, m] : listen) {
    ASSERT_EQ(liste->count(), static_cast<int>(m->Texte.size())) << Name(liste);
    for (int i = 0; i < liste->count(); ++i)
      Texte({{liste->item(i)->text(), m->Texte[static_cast<std::size_t>(i)]}});
    EXPECT_EQ(liste->currentRow(), m->ListIndex) << Name(liste);
  }
  An({{w->Konzept(l.optKonzept), true}});
  Frei({{w->Konzept(0), l.optKonzeptEnabled}, {w->Konzept(1), l.optKonzeptEnabled}});
}

// The frame: every entry carries its row's text and is enabled as the registry says (a submenu
// whenever its needs are met), every button as the frame logic says; the status bar and the Ampel
// show the project state.
inline void ZeigtLogik(mdiQUOR& f, const ProjectState& s) {
  const BefehlsRegister& r = f.Logik().Befehle;
  for (const BefehlsZeile& z : r.Zeilen()) {
    if (z.Trenner()) continue;
    if (z.eltern == ToolbarName) {
      ASSERT_NE(f.Knopf(z.index), nullptr) << z.Schluessel();
      EXPECT_EQ(f.Knopf(z.index)->isEnabled(), f.Logik().Freigegeben(ToolbarName, z.index)) << z.Schluessel();
      continue;
    }
    QAction* a = f.Befehl(QString::fromStdString(z.name), z.index);
    if (!a) continue;
    EXPECT_EQ(a->text(), Q(z.textVon ? z.textVon(s) : z.text)) << z.Schluessel();
    EXPECT_EQ(a->isEnabled(),
              a->menu() ? r.BedarfErfuellt(s, z.name, z.index) : r.Freigegeben(s, z.name, z.index))
        << z.Schluessel();
  }
  for (int i = 1; i <= 4; ++i)
    Texte({{f.StatusText(i), s.Projekt.StatusLeiste[static_cast<std::size_t>(i)]}});
  const AmpelFarbe farbe = FarbeVonAmpel(s.Projekt.Ampel.DatenAmpel);
  EXPECT_EQ(f.Ampel()->isEnabled(), !farbe.Systemfarbe);
  if (!farbe.Systemfarbe) {
    EXPECT_TRUE(f.Ampel()->styleSheet().contains(
        QString("rgb(%1, %2, %3)").arg(farbe.Rot).arg(farbe.Gruen).arg(farbe.Blau)))
        << f.Ampel()->styleSheet().toStdString();
  }
}

} // namespace quor::ui::test
