// The codes of 2D diagram work. `Code` names one curve kind of the curve engine and of the diagram
// catalogue; the numbers are those the menus set and the diagram files keep. `Klasse` groups the
// codes into families that share their curve parameter. Codes below 300 are curves of the EOS (201
// to 211 among them the process lines), 300 to 315 the database functions.
#pragma once

#include <cstdint>

namespace quor::klasse {

constexpr int16_t Isotherme = 1;  // parameter T
constexpr int16_t Isobare = 2;    // parameter p
constexpr int16_t Isochore = 3;   // parameter v
constexpr int16_t Koexistenz = 5; // curves of the two-phase region, parameter Isohygre
constexpr int16_t Inversion = 6;  // Joule-Thomson inversion curve
constexpr int16_t Datenbank = 7;  // database functions of T

} // namespace quor::klasse

namespace quor::code {

// --- isotherms (parameter T) ---
constexpr int16_t pv = 1;        // p over v
constexpr int16_t pvProdukt = 2; // p*v over p
constexpr int16_t RhoP = 26;     // rho over p
constexpr int16_t UvonP = 149;   // functions over p: u, h, s, g, a, eU, eH, cp
constexpr int16_t HvonP = 150;
constexpr int16_t SvonP = 151;
constexpr int16_t GvonP = 152;
constexpr int16_t AvonP = 148;
constexpr int16_t EUvonP = 155;
constexpr int16_t EHvonP = 153;
constexpr int16_t CpVonP = 154;
constexpr int16_t AvonV = 156; // functions over v: a, u, s, cV, eU
constexpr int16_t UvonV = 157;
constexpr int16_t SvonV = 158;
constexpr int16_t CvVonV = 159;
constexpr int16_t EUvonV = 160;
constexpr int16_t ResSvonP = 40; // residual s, h, g, cp over p
constexpr int16_t ResHvonP = 41;
constexpr int16_t ResGvonP = 42;
constexpr int16_t ResCpVonP = 43;
constexpr int16_t HSIsotherme = 107;   // h over s
constexpr int16_t EHTsIsotherme = 109; // eH over T(u)*s
constexpr int16_t EHHIsotherme = 21;   // eH over h

// --- isobars (parameter p) ---
constexpr int16_t Tv = 3;     // T over v
constexpr int16_t TRho = 4;   // T over rho
constexpr int16_t UvonT = 14; // functions over T: u, h, s, g, eH, eU, a, cp
constexpr int16_t HvonT = 15;
constexpr int16_t SvonT = 16;
constexpr int16_t GvonT = 17;
constexpr int16_t EHvonT = 18;
constexpr int16_t CpVonT = 19;
constexpr int16_t EUvonT = 20;
constexpr int16_t AvonT = 25;
constexpr int16_t ResSvonT = 30; // residual s, h, g, cp over T
constexpr int16_t ResHvonT = 31;
constexpr int16_t ResGvonT = 32;
constexpr int16_t ResCpVonT = 33;
constexpr int16_t JouleThomson = 34; // differential Joule-Thomson coefficient delta over T
constexpr int16_t EHHIsobare = 22;   // eH over h
constexpr int16_t EHTsIsobare = 23;  // eH over T(u)*s
constexpr int16_t HSIsobare = 24;    // h over s

// --- isochors (parameter v) ---
constexpr int16_t pT = 5;              // p over T
constexpr int16_t EHvonTIsochor = 180; // functions over T at v: eH, eU, a, u, s, cV
constexpr int16_t EUvonTIsochor = 181;
constexpr int16_t AvonTIsochor = 182;
constexpr int16_t UvonTIsochor = 183;
constexpr int16_t SvonTIsochor = 184;
constexpr int16_t CvVonTIsochor = 185;

// --- coexistence (projections of the two-phase region) ---
constexpr int16_t KoexPv = 6;       // p over v
constexpr int16_t KoexTv = 7;       // T over v
constexpr int16_t KoexRhoT = 8;     // rho(L) and rho(V) over T
constexpr int16_t Dampfdruck = 9;   // p(LV) over T
constexpr int16_t LnPvonInvT = 10;  // ln p(LV) over 1/T
constexpr int16_t Anstieg = 11;     // d ln p/d(1/T) over 1/T (PARTIAL only)
constexpr int16_t KoexTRho = 12;    // T over rho
constexpr int16_t HLVvonT = 13;     // delta(LV)h over T
constexpr int16_t KoexRhoP = 27;    // rho over p
constexpr int16_t Durchmesser = 80; // straight diameter (rho(L) + rho(V))/2 over T
constexpr int16_t KoexH = 90;       // functions along saturation over T: h, s, cp, g, eH, eU
constexpr int16_t KoexS = 91;
constexpr int16_t KoexCp = 92;
constexpr int16_t KoexG = 93;
constexpr int16_t KoexEH = 94;
constexpr int16_t KoexEU = 95;
constexpr int16_t KoexPvProdukt = 106; // p*v over p

// --- inversion ---
constexpr int16_t InversionPT = 105; // inversion pressure over T
constexpr int16_t InversionPv = 190; // inversion curve as p*v over p, delta = 0

// --- process lines ---
constexpr int16_t ProzessGerade = 201;
constexpr int16_t ProzessIsotherme = 202;
constexpr int16_t ProzessIsobare = 204;
constexpr int16_t ProzessIsochore = 206;
constexpr int16_t ProzessIsentrope = 210; // also the isenthalpe
constexpr int16_t ProzessHeterogen = 211; // isochore, isentrope, isenthalpe inside the two-phase region

// --- database functions of T ---
constexpr int16_t DbRhoL = 300;
constexpr int16_t DbVL = 301; // liquid volume from rho(L)
constexpr int16_t DbCpIdGPolynom = 302;
constexpr int16_t DbCpL = 303;
constexpr int16_t DbCpS = 304;
constexpr int16_t DbHLV = 305;
constexpr int16_t DbDampfdruck = 306; // 306 to 309: the database vapour-pressure equations
constexpr int16_t DbRhoS = 310;
constexpr int16_t DbCpIdGSinh = 311;
constexpr int16_t KorrDampfdruck = 312; // 312 to 315: the correlated vapour-pressure equations

constexpr int16_t ErsteDatenbankfunktion = DbRhoL; // codes from here on are no curves of the EOS

} // namespace quor::code
