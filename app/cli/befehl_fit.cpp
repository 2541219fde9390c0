// fit: a model of the fitting dialog fitted to the points of an .XY file or to a column of a .BAQ
// file (sent as the measured-data editor sends it), with the dialog's start fields, fix marks and
// options answered from the command line; the fitted function at given points, and the parameters
// taken over into the substance's data as the dialog's "Parameter übernehmen" does.
#include "cli/ausgabe.h"
#include "cli/befehle.h"
#include "cli/fehler.h"
#include "core/datei_io.h"
#include "core/zahlformat.h"
#include "diagrams/xy_datei.h"
#include "fitting/batch_datei.h"
#include "fitting/fit_lauf.h"
#include "fitting/fit_modelle.h"
#include "fitting/fitting_dialog.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>
#include <ostream>

namespace quor::cli {

namespace {

namespace fm = fitmodell;

bool IstBaq(const std::string& pfad) {
  std::string endung = pfad.size() >= 4 ? pfad.substr(pfad.size() - 4) : "";
  std::transform(endung.begin(), endung.end(), endung.begin(),
                 [](unsigned char c) { return std::toupper(c); });
  return endung == ".BAQ";
}

// The points of an .XY file, all active, as the X-Y editor sends them.
std::vector<FitPunkt> XYPunkte(const ProjectState& s, const std::string& pfad) {
  std::string bytes;
  if (!LeseDateiBytes(pfad, bytes)) throw Eingabefehler("cannot read the data file " + pfad);
  const XYDatei d = LeseXYText(bytes, s.Optionen.XYTrenner);
  std::vector<FitPunkt> p;
  for (std::size_t i = 0; i < d.X.size(); ++i)
    p.push_back({d.X[i], d.Y[i], FlagAktiv});
  return p;
}

// The column of a .BAQ file through the measured-data editor: chosen, sorted by T, sent.
FitUebergabe BaqSpalte(Sitzung& z, const std::string& pfad, int16_t spalte) {
  if (!LadeBatchDatei(z.s, z.ui, pfad)) throw Eingabefehler("cannot read the data file " + pfad);
  frmTpRhoEdit editor(z.s, z.ui);
  editor.Form_Load();
  editor.optFitFunction_Click(spalte);
  if (z.s.Mess.FitSpalte != spalte || !editor.cmdFittingEnabled)
    throw Eingabefehler("--column: the data file has no values in this column beside three temperatures");
  return editor.cmdFitting();
}

// The dialog's fields from the command line, checked against the model.
void FelderSetzen(frmQFitting& f, const Aufruf& a) {
  const int16_t m = a.Modell;
  const std::string modell = "model " + std::to_string(m);
  if (a.Lg && !HatLg(m)) throw Eingabefehler("--lg: " + modell + " has no decimal form (only 3 to 7)");
  if (a.Glaettung && m != fm::AkimaSpline)
    throw Eingabefehler("--smoothing is only for the spline (model 19)");
  if (a.Uebernehmen && (m == fm::Polynom || m == fm::Kombi || m == fm::AkimaSpline))
    throw Eingabefehler("--apply: " + modell + " has no parameter set in the substance data");
  f.SSTab1_Click(FitModellVon(m)->Tab);
  f.chkLg_Click(m, a.Lg);
  f.optFit_Click(m);
  if (a.LogFit) f.optLogFit_Click(1);
  const int felder = ParameterFelder(m);
  for (const int i : a.Fix) {
    if (i > felder || !f.chkFixVisible[static_cast<std::size_t>(i - 1)])
      throw Eingabefehler("--fix " + std::to_string(i) + ": " + modell +
                          " has no parameter field to fix there");
    f.chkFix_Click(i - 1, true);
  }
  if (static_cast<int>(a.Start.size()) > felder)
    throw Eingabefehler("--start: " + modell + " has " + std::to_string(felder) + " parameter fields");
  for (std::size_t i = 0; i < a.Start.size(); ++i)
    f.txtStart_Change(static_cast<int>(i), a.Start[i]);
  if (a.Tcr) {
    if (TcrFeld(m) < 0) throw Eingabefehler(modell + " takes no --tcr");
    f.txtStart_Change(TcrFeld(m), *a.Tcr);
  }
  if (a.Pcr) {
    if (PcrFeld(m) < 0) throw Eingabefehler(modell + " takes no --pcr");
    f.txtStart_Change(PcrFeld(m), *a.Pcr);
  }
  if (a.Glaettung) f.txtSplineWicht_Change(*a.Glaettung);
}

// The parameters as the result fields show them, in full precision; model 6 with its computed D.
std::vector<double> Parameter(const frmQFitting& f) {
  const FitZustand& z = f.Fit;
  std::vector<double> p;
  for (int i = 0; i < ParameterFelder(z.FitModell); ++i)
    p.push_back(z.FitPar[static_cast<std::size_t>(i)]);
  if (z.FitModell == fm::FrostKalkwarfThodos) {
    p[4] = z.FitPar[3];
    p[3] = z.FitPar[1] * 1.8 / z.FitTcr + 2.67;
  }
  return p;
}

// The standard deviations where the dialog shows them; NaN for the computed D.
std::vector<double> Abweichungen(const frmQFitting& f) {
  const FitZustand& z = f.Fit;
  std::vector<double> s;
  if (!f.StDevKopfVisible) return s;
  for (int i = 0; i < ParameterFelder(z.FitModell); ++i)
    s.push_back(z.FitStDev[static_cast<std::size_t>(i)]);
  if (z.FitModell == fm::FrostKalkwarfThodos) {
    s[4] = z.FitStDev[3];
    s[3] = std::numeric_limits<double>::quiet_NaN();
  }
  return s;
}

// Every value of the parameter sets that a transfer can write, by name.
using Werte = std::vector<std::pair<std::string, double>>;

template <std::size_t N>
void Satz(Werte& w, const std::string& name, const std::array<float, N>& k,
          const std::array<const char*, N>& namen, const TGrenzen* g = nullptr) {
  for (std::size_t i = 0; i < N; ++i)
    w.emplace_back(name + "." + namen[i], k[i]);
  if (g == nullptr) return;
  w.emplace_back(name + ".TLo", g->TLo);
  w.emplace_back(name + ".THi", g->THi);
}

Werte SatzWerte(const StoffGruppe& st) {
  Werte w;
  const std::array<const char*, 5> cp = {"C0", "C1", "C2", "C3", "C4"};
  Satz<3>(w, "AntoineNd", st.AntoineNd, {"A", "B", "C"}, &st.AntoineNdGrenzen);
  Satz<9>(w, "FrostKalkwarf", st.FrostKalkwarf, {"A", "B", "C", "D", "E", "F", "G", "H", "I"},
          &st.FrostKalkwarfGrenzen);
  Satz<10>(w, "Wagner", st.Wagner, {"A1", "A2", "A3", "n3", "A4", "n4", "A5", "n5", "Tcrit", "pcrit"},
           &st.WagnerGrenzen);
  Satz<7>(w, "RhoL", st.RhoL, {"A", "B", "C", "D", "E", "F", "G"}, &st.RhoLGrenzen);
  w.emplace_back("RhoLTcr", st.RhoLTcr);
  Satz<6>(w, "HLV", st.HLV, {"A", "alpha", "beta", "C", "D", "E"});
  w.emplace_back("HLVTcr", st.HLVTcr);
  Satz<5>(w, "CpPoly", st.CpPoly, cp);
  Satz<5>(w, "CpSinh", st.CpSinh, cp, &st.CpSinhGrenzen);
  Satz<5>(w, "CpL", st.CpL, cp);
  Satz<5>(w, "CpS", st.CpS, cp);
  return w;
}

struct Aenderung {
  std::string feld;
  double alt, neu;
};

std::vector<Aenderung> Aenderungen(const Werte& vorher, const Werte& nachher) {
  std::vector<Aenderung> a;
  for (std::size_t i = 0; i < vorher.size(); ++i)
    if (vorher[i].second != nachher[i].second)
      a.push_back({vorher[i].first, vorher[i].second, nachher[i].second});
  return a;
}

struct FitErgebnis {
  bool ok = false;
  std::vector<double> werte;
  std::vector<Aenderung> uebernommen;
  std::vector<Meldung> meldungen;
};

void JsonAusgabe(std::ostream& aus, const frmQFitting& f, const FitErgebnis& e, bool uebernehmen) {
  auto liste = [](JsonSchreiber& j, const std::vector<double>& werte) {
    j.BeginListe(true);
    for (const double x : werte)
      j.Zahl(x);
    j.EndeListe();
  };
  JsonSchreiber j;
  j.BeginObjekt();
  j.Feld("model", f.Fit.FitModell);
  j.Feld("n_active", AktivePunkte(f.Fit));
  j.Schluessel("parameters");
  liste(j, e.ok ? Parameter(f) : std::vector<double>{});
  j.Schluessel("stdev");
  liste(j, e.ok ? Abweichungen(f) : std::vector<double>{});
  j.Feld("FQS", e.ok ? f.Fit.FQS : std::numeric_limits<double>::quiet_NaN());
  j.Feld("sR", e.ok ? f.Fit.sR : std::numeric_limits<double>::quiet_NaN());
  j.Schluessel("values");
  liste(j, e.werte);
  if (uebernehmen) {
    j.Schluessel("applied");
    j.BeginListe();
    for (const Aenderung& a : e.uebernommen) {
      j.BeginObjekt();
      j.Feld("field", a.feld);
      j.Feld("old", a.alt);
      j.Feld("new", a.neu);
      j.EndeObjekt();
    }
    j.EndeListe();
  }
  j.Schluessel("messages");
  MeldungenJson(j, e.meldungen);
  j.EndeObjekt();
  aus << j.Ergebnis();
}

// The dialog's texts: caption, model, formula, the results frame and the parameters (the spline's
// pieces as its list shows them), then the values and what was taken over.
void TextAusgabe(std::ostream& aus, const Aufruf& a, const frmQFitting& f, const FitErgebnis& e) {
  aus << f.Caption << "\n" << FitModellVon(f.Fit.FitModell)->Titel << "\n";
  if (!f.lblFittingEq.empty()) aus << f.lblFittingEq << "\n";
  if (!e.ok) return;
  aus << f.fraFQSCaption << "\n";
  if (f.Fit.FitModell == fm::AkimaSpline) aus << MitLF(SplineListe(f.Fit.Spline)) << "\n";
  for (std::size_t i = 0; i < f.txtPar.size(); ++i) {
    if (!f.txtParVisible[i]) continue;
    aus << "  " << f.lblStart[i] << f.txtPar[i];
    if (f.txtStDevVisible[i] && !f.txtStDev[i].empty()) aus << "   s = " << f.txtStDev[i];
    aus << "\n";
  }
  aus << f.lblFQS1 << ": " << f.lblFQS2 << "\n" << frmQFitting::Label11Text << ": " << f.lblsr2 << "\n";
  for (std::size_t i = 0; i < e.werte.size(); ++i)
    aus << "y(" << DoubleText(a.Stellen[i])
        << ") = " << (std::isfinite(e.werte[i]) ? DoubleText(e.werte[i]) : std::string("Error")) << "\n";
  for (const Aenderung& u : e.uebernommen)
    aus << u.feld << ": " << SingleText(static_cast<float>(u.alt)) << " -> "
        << SingleText(static_cast<float>(u.neu)) << "\n";
}

} // namespace

int BefehlFit(Sitzung& z, std::ostream& aus, std::ostream& fehler) {
  const Aufruf& a = z.aufruf;
  ProjectState& s = z.s;
  const bool baq = IstBaq(a.Daten);
  if (a.Gegeben.count("--column") != 0 && !baq) throw Eingabefehler("--column is only for .BAQ data");
  if (!a.Stoff.empty() || baq || a.Uebernehmen) {
    z.DatenbankOeffnen();
    z.StoffUndModelle();
  }
  frmQFitting f(s, z.ui);
  if (baq)
    f.DatenLaden(BaqSpalte(z, AbsoluterPfad(a.Daten), a.Spalte));
  else
    f.DatenLaden(XYPunkte(s, AbsoluterPfad(a.Daten)));
  FelderSetzen(f, a);

  FitErgebnis e;
  e.ok = f.cmdStart();
  if (e.ok) {
    for (const double x : a.Stellen) {
      int16_t fehlerFlag = 0;
      const double y = FitFunktionswert(s, f.Fit, x, fehlerFlag);
      e.werte.push_back(fehlerFlag != 0 ? std::numeric_limits<double>::quiet_NaN() : y);
    }
  }
  bool uebernommen = true;
  if (e.ok && a.Uebernehmen) {
    const Werte vorher = SatzWerte(s.Stoff);
    uebernommen = f.cmdApply();
    e.uebernommen = Aenderungen(vorher, SatzWerte(s.Stoff));
  }
  e.meldungen = Meldungen(z.ui, z.Gedruckt, z.ui.protokoll.size());
  z.Gedruckt = z.ui.protokoll.size();
  if (a.Json) {
    JsonAusgabe(aus, f, e, a.Uebernehmen);
  } else {
    TextAusgabe(aus, a, f, e);
    MeldungenSchreiben(fehler, e.meldungen);
  }
  if (!e.ok) fehler << "quor-cli: the fit was refused\n";
  if (!uebernommen) fehler << "quor-cli: nothing was taken over\n";
  return e.ok && uebernommen ? ExitOK : ExitRechnung;
}

} // namespace quor::cli
