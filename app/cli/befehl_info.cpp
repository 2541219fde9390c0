// info: the loaded substance with its constants and derived values, the models after the model
// window's corrections, the constants of the EOS, the data diagnosis and the EOS parameter report.
#include "cli/ausgabe.h"
#include "cli/befehle.h"
#include "cli/fehler.h"
#include "core/daten_diagnose.h"
#include "engine/eos_parameter.h"

#include <ostream>
#include <sstream>

namespace quor::cli {

namespace {

// One writer for both forms: "Name = value" lines under headings, or the keys of one JSON object.
class InfoAusgabe {
public:
  InfoAusgabe(bool json, std::ostream& aus) : json_(json), aus_(aus) {
    if (json_) j_.BeginObjekt();
  }

  void Abschnitt(const std::string& titel) {
    if (!json_) aus_ << (erster_ ? "" : "\n") << titel << "\n";
    erster_ = false;
  }
  void Feld(const char* name, const std::string& wert) {
    if (json_)
      j_.Feld(name, wert);
    else
      aus_ << "  " << name << " = " << wert << "\n";
  }
  void Feld(const char* name, const char* wert) { Feld(name, std::string(wert)); }
  void Feld(const char* name, double x) { Zahl(name, x, KurzText(x)); }
  void Feld(const char* name, float x) { Zahl(name, x, KurzText(x)); }
  void Feld(const char* name, int x) {
    if (json_)
      j_.Feld(name, x);
    else
      aus_ << "  " << name << " = " << x << "\n";
  }
  void Feld(const char* name, int16_t x) { Feld(name, static_cast<int>(x)); }
  void Feld(const char* name, bool b) {
    if (json_)
      j_.Feld(name, b);
    else
      aus_ << "  " << name << " = " << (b ? "true" : "false") << "\n";
  }
  template <typename T, std::size_t N> void Feld(const char* name, const std::array<T, N>& werte) {
    if (json_) {
      j_.Schluessel(name);
      j_.BeginListe(true);
      for (const T x : werte)
        j_.Zahl(x);
      j_.EndeListe();
      return;
    }
    aus_ << "  " << name << " =";
    for (const T x : werte)
      aus_ << " " << KurzText(x);
    aus_ << "\n";
  }
  void Grenzen(const char* name, const TGrenzen& g) {
    Feld(name, std::array<float, 2>{static_cast<float>(g.TLo), static_cast<float>(g.THi)});
  }
  // A text of several lines: in JSON a key, in text mode a block under its heading.
  void Block(const char* name, const std::string& titel, const std::string& text) {
    if (json_) {
      j_.Feld(name, text);
      return;
    }
    Abschnitt(titel);
    aus_ << MitLF(text);
    if (!text.empty() && text.back() != '\n') aus_ << "\n";
  }
  JsonSchreiber& Json() { return j_; }
  void Ende() {
    if (!json_) return;
    j_.EndeObjekt();
    aus_ << j_.Ergebnis();
  }

private:
  template <typename T> void Zahl(const char* name, T x, const std::string& text) {
    if (json_)
      j_.Feld(name, x);
    else
      aus_ << "  " << name << " = " << text << "\n";
  }

  bool json_;
  std::ostream& aus_;
  JsonSchreiber j_;
  bool erster_ = true;
};

} // namespace

int BefehlInfo(Sitzung& z, std::ostream& aus, std::ostream& fehler) {
  z.DatenbankOeffnen();
  z.StoffUndModelle();
  ProjectState& s = z.s;
  const DatenLage lage = DatenDiagnose(s);
  const std::string diagnose = DatenAmpelText(s);
  const std::string parameter = ParameterEOSText(s);
  const auto meldungen = Meldungen(z.ui, z.Gedruckt, z.ui.protokoll.size());
  z.Gedruckt = z.ui.protokoll.size();
  if (!z.aufruf.Json) MeldungenSchreiben(fehler, meldungen);

  const StoffGruppe& st = s.Stoff;
  const ModelSelection& m = s.Modell;
  const EOSGruppe& e = s.EOS;
  const EinheitenGruppe& u = s.Einheiten;
  const ReferenzGruppe& r = s.Referenz;
  InfoAusgabe a(z.aufruf.Json, aus);

  a.Abschnitt("Substance");
  a.Feld("StoffName", st.StoffName);
  a.Feld("Formel", st.Formel);
  a.Feld("Struktur", st.Struktur);
  a.Feld("CASRN", st.CASRN);
  a.Feld("MDBNr", st.MDBNr);
  a.Feld("StoffIndex", s.Datenbank.StoffIndex);
  a.Feld("MolMasse", st.MolMasse);
  a.Feld("TKrit", st.TKrit);
  a.Feld("pKrit", st.pKrit);
  a.Feld("rhoKritExp", st.rhoKritExp);
  a.Feld("vKritExp", st.vKritExp);
  a.Feld("omega", st.omega);
  a.Feld("TSiede", st.TSiede);
  a.Feld("TTripel", st.TTripel);
  a.Feld("pTripel", st.pTripel);
  a.Feld("TUntereGrenze", st.TUntereGrenze);
  a.Feld("hBildung", st.hBildung);
  a.Feld("gBildung", st.gBildung);
  a.Feld("sBildung", st.sBildung);
  a.Feld("DeltaFs", st.DeltaFs);
  a.Feld("AugustA", st.AugustA);
  a.Feld("AugustB", st.AugustB);

  a.Abschnitt("Correlations");
  a.Feld("RhoL", st.RhoL);
  a.Feld("RhoLTcr", st.RhoLTcr);
  a.Grenzen("RhoLGrenzen", st.RhoLGrenzen);
  a.Feld("FrostKalkwarf", st.FrostKalkwarf);
  a.Grenzen("FrostKalkwarfGrenzen", st.FrostKalkwarfGrenzen);
  a.Feld("AntoineNd", st.AntoineNd);
  a.Grenzen("AntoineNdGrenzen", st.AntoineNdGrenzen);
  a.Feld("AntoineHd", st.AntoineHd);
  a.Grenzen("AntoineHdGrenzen", st.AntoineHdGrenzen);
  a.Feld("Wagner", st.Wagner);
  a.Grenzen("WagnerGrenzen", st.WagnerGrenzen);
  a.Feld("CpPoly", st.CpPoly);
  a.Grenzen("CpPolyGrenzen", st.CpPolyGrenzen);
  a.Feld("CpSinh", st.CpSinh);
  a.Grenzen("CpSinhGrenzen", st.CpSinhGrenzen);
  a.Feld("CpL", st.CpL);
  a.Grenzen("CpLGrenzen", st.CpLGrenzen);
  a.Feld("CpS", st.CpS);
  a.Grenzen("CpSGrenzen", st.CpSGrenzen);
  a.Feld("CpPolyOK", st.CpPolyOK);
  a.Feld("CpSinhOK", st.CpSinhOK);
  a.Feld("CpLOK", st.CpLOK);
  a.Feld("CpSOK", st.CpSOK);
  a.Feld("HLV", st.HLV);
  a.Feld("HLVTcr", st.HLVTcr);
  a.Grenzen("HLVGrenzen", st.HLVGrenzen);
  a.Feld("WatsonH", st.WatsonH);
  a.Feld("WatsonT", st.WatsonT);
  a.Feld("RhoS", st.RhoS);
  a.Grenzen("RhoSGrenzen", st.RhoSGrenzen);
  a.Feld("KFW", st.KFW);
  a.Feld("KFR", st.KFR);
  a.Feld("THO", st.THO);

  a.Abschnitt("Models");
  a.Feld("EOSIndex", m.EOSIndex);
  a.Feld("EOSName", m.EOSIndex >= 0 ? ZeilenText(s.Tab.EOSNamen[m.EOSIndex]) : std::string());
  a.Feld("VirialFlag", m.VirialFlag);
  a.Feld("DampfdruckIndex", m.DampfdruckIndex);
  a.Feld("DampfdruckTag", m.DampfdruckTag);
  a.Feld("DampfdruckName",
         m.DampfdruckIndex >= 0 ? ZeilenText(s.Tab.DampfdruckNamen[m.DampfdruckIndex]) : std::string());
  a.Feld("HLVIndex", m.HLVIndex);
  a.Feld("HLVName", m.HLVIndex >= 0 ? ZeilenText(s.Tab.HLVNamen[m.HLVIndex]) : std::string());
  a.Feld("CpIndex", m.CpIndex);
  a.Feld("CpName", m.CpIndex >= 0 ? ZeilenText(s.Tab.CpNamen[m.CpIndex]) : std::string());
  a.Feld("WatsonExp", m.WatsonExp);
  a.Feld("KonzeptGlobal", m.KonzeptGlobal);
  a.Feld("RechnungGlobal", m.RechnungGlobal);
  a.Feld("BensonDichte", m.BensonDichte);

  a.Abschnitt("EOS constants");
  a.Feld("aForm", e.aForm);
  a.Feld("a0", e.a0);
  a.Feld("b0", e.b0);
  a.Feld("c0", e.c0);
  a.Feld("d0", e.d0);
  a.Feld("aExp", e.aExp);
  a.Feld("bExp", e.bExp);
  a.Feld("cExp", e.cExp);
  a.Feld("dExp", e.dExp);
  a.Feld("BExpHand", e.BExpHand);
  a.Feld("vKritEOS", e.vKritEOS);
  a.Feld("rhoKritEOS", e.rhoKritEOS);
  a.Feld("JiParameter", e.JiParameter);

  a.Abschnitt("Units and reference state");
  a.Feld("VolumenMode", u.VolumenMode);
  a.Feld("VolumenFaktor", u.VolumenFaktor);
  a.Feld("EnergieMode", u.EnergieMode);
  a.Feld("TFaktor", u.TFaktor);
  a.Feld("pFaktor", u.pFaktor);
  a.Feld("TEinheit", u.TEinheit);
  a.Feld("pEinheit", u.pEinheit);
  a.Feld("vEinheit", u.vEinheit);
  a.Feld("TVorgabe", u.TVorgabe);
  a.Feld("pVorgabe", u.pVorgabe);
  a.Feld("vVorgabe", u.vVorgabe);
  a.Feld("RefArt", r.RefArt);
  a.Feld("hRef", r.hRef);
  a.Feld("sRef", r.sRef);
  a.Feld("TRef", r.TRef);
  a.Feld("pRef", r.pRef);
  a.Feld("TUmgebung", r.TUmgebung);
  a.Feld("pUmgebung", r.pUmgebung);

  a.Abschnitt("Data diagnosis");
  a.Feld("DatenAmpel", lage.DatenAmpel);
  a.Block("DatenAmpelText", DatenAmpelTitel, diagnose);
  a.Block("ParameterEOSText", ZeilenText(ParameterEOSTitel), parameter);
  if (z.aufruf.Json) {
    a.Json().Schluessel("messages");
    MeldungenJson(a.Json(), meldungen);
  }
  a.Ende();
  return ExitOK;
}

} // namespace quor::cli
