#include "cli/argumente.h"

namespace quor::cli {

const char* HilfeText() {
  return R"(Usage: quor-cli [global options] COMMAND [options]

QUOR-6 thermodynamic state calculations on pure substances, without a window. The commands run
the program's own substance choice, model window, calculation dispatcher and result files.

Commands:
  list                    the substances of the database (position, system number, formula,
                          name, CAS number)
  info                    constants and derived values of the substance, the models after the
                          model window's corrections, the EOS constants, the data diagnosis and
                          the EOS parameter report
  calc KIND [options]     one direct calculation of that kind; prints the result page
  batch KIND --data FILE.BAQ [--lst OUT] [--csv OUT] [--sections N] [--functions] [--details]
                          every live point of a measured-data file; one line per point;
                          --lst writes the result list, --csv the record of all points,
                          --details adds the per-point derivative pages to the list
  curve CODE [options]    one curve of a 2D diagram as the diagram page gets it: title, axis
                          texts, then "X Y Z" per point (displayed units; Z the curve's parameter)
  surface ART [options]   one surface of the 3D diagram over a grid: title, axis texts, then
                          "X Y Z" per grid point, row by row with an empty line after each row
                          (displayed units; "-" for a point without a value)
  fit MODEL --data FILE [options]
                          a model of the fitting dialog fitted to the points of an .XY file
                          or to a column of a .BAQ file: the results frame, the parameters
                          with their standard deviations, the values at --eval points;
                          --apply takes the parameters over into the substance's data
  process KIND --from T1,P1 (--to-T X | --to-p X) [options]
                          the states along a process line: "T p v h s eta" per point
                          (K, kPa, m^3/kmol, kJ/kmol, kJ/(kmol K); eta the degree of
                          vaporization)
  iso (--T X | --p X) --fix F --value X [--phase V|L] [--start X]
                          the iso-line calculator: the p (kPa) or T (K) at which the function
                          F of the phase takes the value X at the given T or p
  joback --groups I:N,I:N,... [--tb X]
                          the group-contribution estimate (Joback): molar mass, critical data,
                          normal boiling and freezing point, omega, formation quantities and
                          the ideal-gas cp polynomial from the counts of the groups
  private-db --out FILE [--set DD=X,...]
                          the substance data editor: the substance's data, changed by --set,
                          taken over and written as the private database of the one substance

Kinds (KIND):
  1  T, rho(V) => p          2  T, rho(L) => p          3  T, p => rho
  13 p, rho => T             4  T => p(LV)              5  p => T(LV)
  6  T => delta(LV)h         7  p => delta(LV)h         8  T, p => h, u, s, g, a, e, cp, ...
  9  vessel (GLOBAL)         10 vessel (PARTIAL)        11 T => virial coefficients B
  14 rho(L) database         24 rho(S) database         15 delta(LV)h database
  16 cp(idG) database        17 cp(L) database          18 cp(S) database
  19 Frost/Kalkwarf p(LV)    20 Wagner p(LV)            21 Antoine (low p)   22 Antoine (high p)
  Kinds 9 and 10 are not available for batch; calc ends them with the vessel picture's
  caption, pressure field (p: ...) and fill level.

Options of calc:
  --T X, --p X            temperature in K, pressure in kPa
  --rho X | --v X         density in kg/m^3 or volume in the unit of --volume-mode (kinds 1, 2, 13)
  --m X --V X             mass in kg and volume in m^3 of the vessel (kinds 9, 10, with --T)
  --sections N            1 nothing further, 2 fugacity and mechanical coefficients,
                          3 derivatives, 4 both (also for batch)
  --functions             the block of thermodynamic functions (also for batch)
  --equilibrium           kind 3: T and p describe a vapour-liquid equilibrium (PARTIAL)
  --ref-point T,p,rhoL,rhoV
                          reference point of a PARTIAL calculation (also for batch); without it
                          the point is proposed from the substance's data

Options of curve:
  --T X | --p X | --v X   the curve's parameter: T for an isotherm, p for an isobar, v (unit of
                          --volume-mode) for an isochor; curves of the two-phase region, the
                          inversion curve and the database functions take none
  --x A,B, --y A,B        axis ranges in displayed units (";" may separate); default: the
                          diagram's standard ranges
  --points N              points per curve (default 500)
  --isohygre X            vapour fraction of a line of the two-phase region (0 boiling, 1 dew)
  --s-loop                draw the S-loop of an isotherm inside the two-phase region
  --real                  follow the real behaviour (tie line) inside the two-phase region
  --tie-line              the tie line of the state instead of the curve
  Codes: 1 p-v, 26 rho-p, 2 pv-p (isotherms); 3 T-v, 4 T-rho (isobars); 5 p-T (isochor);
  14..20, 25, 19, 30..34 functions over T at p; 148..155, 40..43 over p at T; 156..160 over v;
  180..185 over T at v; 6, 7, 8, 9, 10, 11, 12, 13, 27, 80, 106 the two-phase region;
  90..95 functions along saturation; 21..24, 107, 109 h-s and exergy diagrams;
  105, 190 inversion curves; 300..315 database functions of T.

Options of surface:
  --x A,B, --y A,B, --z A,B
                          axis ranges in displayed units (";" may separate); default: the
                          surface's standard ranges, where Z of ARTs 4 to 10 follows the data;
                          heights outside a Z range are held at its ends
  --nx N, --ny N          grid steps per axis, 1 to 400 (default 60: N + 1 points)
  --real                  p(v, T) and T(v, p) of a cubic EOS with the saturation plane inside
                          the two-phase region; without it the S-curves (other models and
                          surfaces always follow the real behaviour)
  Arts (ART): 1 p(v, T), 2 v(p, T), 3 T(v, p), 4 cp(p, T), 5 u(p, T), 6 h(p, T), 7 s(p, T),
  8 g(p, T), 9 exergy of u, 10 exergy of h; x, y are v, T (1), p, T (2), v, p (3), p, T (4 to 10).

Options of fit:
  --data FILE             .XY points (x;y, all active), or a .BAQ measured-data file (needs
                          --substance) sent as the measured-data editor sends a column
  --column p|rhoV|rhoL|hlv|cp
                          the column of a .BAQ file (default p; the p column fits ln p)
  --log                   the sum of squares of ln y
  --lg                    the decimal form of a vapour-pressure model (3 to 7), chosen before
                          the model so that its start values follow
  --start A,B,...         the start fields in the dialog's order (";" may separate)
  --fix I,J,...           fix parameters I, J (1 = A); a fixed term of models 0 and 1 is left
                          out, in the others the parameter keeps the --start value (default 0)
  --tcr X, --pcr X        Tcr/K and pcr/kPa of the models that need them (default: the
                          substance's critical point)
  --smoothing X           Sm of the spline (model 19), 0 to 1000
  --eval X1,X2,...        the fitted function at these x (T in K)
  --apply                 write the parameters into the substance's parameter set (the
                          heat capacity into the ideal-gas set) and list what changed
  Models (MODEL): 0 polynomial, 1 combined expression, 19 Akima spline; vapour pressure
  3 August, 4 Antoine, 5 Frost-Kalkwarf, 6 Frost-Kalkwarf-Thodos, 7 DIPPR, 8 Wagner; liquid
  density 9 Rackett, 10 Leuna, 11 polynomial; delta(LV)h 14 Majer, 15 DIPPR; cp 16
  polynomial, 17 Shomate, 18 DIPPR.
  JSON: {"model", "n_active", "parameters", "stdev", "FQS", "sR", "values", "messages"},
  with --apply also "applied" (field, old, new); a value that cannot be computed is null.

Options of process:
  --from T1,P1            the start state in K and kPa (";" may separate); a two-phase line
                          starts on the tie line of T1 (with --to-T) or of P1 (with --to-p)
  --to-T X | --to-p X     the end of the range in K or kPa; 50 equal steps
  --phase V|L             the phase of the line (default V); with --hetero the saturated
                          phase whose quantity the line keeps
  --hetero                the isochore, isentrope or isenthalpe inside the two-phase region,
                          by the lever rule
  --n N, --kappa K        polytropic exponent and cp/cV of the polytrope
  --ideal                 the polytrope of the ideal gas; without it the polytrope of the
                          current EOS, computed by the calculator Merlon_1
  --eta X                 the degree of vaporization of the eta line, 0 to 1
  Kinds (KIND): isotherm (--to-p), isobar (--to-T), isochore, isentrope, isenthalpe,
  polytrope, eta. JSON: {"kind", "points": [{"T", "p", "v", "h", "s", "eta"}, ...],
  "report": {"curve_code", "heterogeneous", "fixed_quantity", "fixed_value", "failed"},
  "messages"}; a refused line has no points and its message. The polytrope of the EOS
  adds the calculator's report text and its 22 head values to "report" ("text", "head").

Options of iso:
  --T X | --p X           the given temperature in K or pressure in kPa
  --fix F                 the function held: v, h, s, g, u, eh, eu (the exergies of h and u), a
  --value X               its value in the unit of --energy-mode and --volume-mode (by default
                          kJ/kmol, kJ/(kmol K), m^3/kmol)
  --phase V|L             the phase whose function is held (default V)
  --start X               the first trial of the pressure (kPa, default 101.325) or of the
                          temperature (K, default 298.15); a liquid needs one where it exists
  Prints "p = X kPa" or "T = X K"; without a solution "keine Lösung" and exit code 1.
  JSON: {"given", "fixed", "value", "phase", "solved", "result", "unit", "T", "p",
  "messages"}; T and p only when solved.

Options of joback (no database or substance needed):
  --groups I:N,...        the count N of the group in row I (0 to 40) of the group table:
                          0 -CH3, 1 -CH2-, 2 >CH-, 3 >C<, 4 =CH2, 5 =CH-, 6 =C<, 7 =C=, 8 -=CH,
                          9 -=C-, 10 to 14 the ring carbons -CH2-, >CH-, >C<, =CH-, =C<, 15 -F,
                          16 -Cl, 17 -Br, 18 -I, 19 -OH (alcohol), 20 -OH (phenol), 21 -O-,
                          22 -O- (ring), 23 >C=O, 24 >C=O (ring), 25 -CHO, 26 -COOH, 27 -COO-,
                          28 =O, 29 -NH2, 30 >NH, 31 >NH (ring), 32 >N-, 33 -N=, 34 -N= (ring),
                          35 =NH, 36 -CN, 37 -NO2, 38 -SH, 39 -S-, 40 -S- (ring);
                          isopropanol: 0:2,2:1,19:1
  --tb X                  a measured normal boiling point in K for T(cr) (the dialog's box)
  Prints the values as the dialog shows them; "=NH" leaves the critical data out with the
  dialog's message. JSON: {"M", "atoms", "Tb", "Tf", "Tc", "pc", "vc", "rhoCr", "omega", "hf",
  "gf", "cp": [C0, C1, C2, C3], "messages"} in K, kPa, m^3/kmol, kg/m^3, kJ/kmol and
  kJ/(kmol K); the critical data and omega are null when they could not be calculated.

Options of private-db (with --db and --substance):
  --out FILE              the private database to write (.Q07, or .Q06 for a .Q06 database):
                          a header and the substance's record; the cells the program doesn't
                          hold keep the open database's values
  --set DD=X,...          field DD of the data editor takes the text X before the take-over
                          (4 T(cr), 5 p(cr), 7 omega, 1 T(b), 122 S(konv.) ...; "<>" no value,
                          0 an entered zero); the take-over derives flags, tag, T(b) and August
  Prints the file's name with the substance's name and CAS number.

Global options:
  --db PATH               database (.Q07, or .Q06); default QUOR.Q07 of the program directory
  --substance TEXT        list name, CAS number, system number (#123), or a synonym in German
                          or English
  --eos N                 EOS row: 0 ideal gas; 2 van der Waals, 3 Berthelot, 4 Redlich/Kwong,
                          5 Soave/Redlich/Kwong, 6 Peng/Robinson, 7, 8 Varnik/Ji I, II;
                          10 virial hand input, 11..15 virial forms of 2..6, 16 Pitzer/Curl
  --vapour-pressure N     1 Antoine (low), 2 Antoine (high), 3 Frost/Kalkwarf, 4 Wagner,
                          5 August, 6 Frost/Kalkwarf (vdW), 7 Frost/Kalkwarf (RK), 8 Thompson
  --hlv N                 delta(LV)h: 1 database, 2 Chen, 3 Carruth/Kobayashi, 4 Watson,
                          5 from p(LV) + rhoL(T), 6 from p(LV) + Benson, 7 from the cubic EOS
  --cp N                  ideal-gas cp: 1 polynomial, 2 sinh/cosh
  --watson X              exponent of the Watson correlation (with --hlv 4)
  --concept global|partial
                          GLOBAL (saturation from the cubic EOS) or PARTIAL (vapour-pressure
                          equation); default: the model window's concept
  --liquid-density benson|database
                          liquid density of a PARTIAL calculation
  --energy-mode 0..3      0 kJ/kmol, 1 per R, 2 per R*T(preset), 3 kJ/kg
  --volume-mode 0..2      0 m^3/kmol, 1 m^3/kg, 2 reduced T, p, v
  --reference 1|2|10      zero of h and s: 1 user values, 2 formation quantities,
                          10 conventional normalisation
  --h-ref X, --s-ref X    h and s at the reference state (units of --energy-mode; --reference 1)
  --T-ref X, --p-ref X    reference temperature (K) and pressure (kPa) (--reference 1)
  --T-env X, --p-env X    environment of the exergies, K and kPa
  --virial-b0 X, --virial-b1 X, --virial-b2 X
                          B/(m^3/kmol) = b0 - b1/T^b2 of the hand-input virial model (--eos 10)
  --json                  machine-readable output (JSON) on stdout
  --help, -h              this text
  --installation          (alone) the program directory the program uses and which of its files
                          (database, synonyms, help, companion programs) it finds there; exit
                          code 1 when one is missing

Models are offered, defaulted and corrected as in the model window; a model that the
substance's data don't allow is refused. Messages of the program (German) go to stderr, in JSON
output into "messages".

Exit codes: 0 success, 1 the calculation failed (or the fit or its transfer was refused),
2 usage or input error.
)";
}

} // namespace quor::cli
