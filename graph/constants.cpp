#include "graph/constants.h"

#include <array>

namespace velmora::graph {
namespace {

constexpr std::array<ConstantEntry, 26> kAToJ{{
    {1, "e - natural logarithm base", "2.71828182845905"},
    {3, "Astronomical unit", "149597870000"},
    {4, "Atomic mas unit", "1.66054*10^(-27)"},
    {5, "Avagadro's constant", "6.022137*10^(23)"},
    {6, "Average radius of Earth (m)", "6371024"},
    {7, "Bohr magneton", "9.2740154*10^(-24)"},
    {8, "Bohr radius", "5.29177249*10^(-11)"},
    {9, "Boltzman constant (J/K)", "1.380658*10^(-23)"},
    {10, "Celsius temperature", "273.15"},
    {11, "Compton wavelength of the electron", "2.42631058*10^(-12)"},
    {12, "Compton wavelength of the proton", "1.32141002*10^(-15)"},
    {13, "Coulomb constant", "8987552000"},
    {14, "Dielectric permittivity", "8.854187817*10^(-12)"},
    {15, "Electron charge/mass ratio", "175879600000"},
    {16, "Electron magnetic moment", "9.2847701*10^(-24)"},
    {17, "Electron mass", "9.10939*10^(-31)"},
    {18, "Electron radius", "2.81794092*10^(-15)"},
    {19, "Electron volt (C)", "1.60217733*10^(-19)"},
    {20, "Euler costant", "0.577215664901533"},
    {21, "Faraday constant", "96487"},
    {22, "Fluxoid quantu", "2.06783461*10^(-15)"},
    {23, "Gas constant", "8.31451"},
    {24, "Gravitational acceleration g", "9.80665"},
    {25, "Gravitational constant", "6.67259*10^(-11)"},
    {26, "Ideal gas volume at STP", "0.0224141"},
    {27, "Josephson frequency/voltage ratio", "483597670000000"},
}};

constexpr std::array<ConstantEntry, 27> kMToS{{
    {1, "Magnetic permeability", "0.000001256637061"},
    {2, "Muon magnetic moment", "4.4904514*10^(-26)"},
    {3, "Muon rest mass", "1.8835327*10^(-28)"},
    {4, "Neutron magnetic moment", "9.6623707*10^(-27)"},
    {5, "Neutron mass", "1.674929*10^(-27)"},
    {6, "Nuclear magneton", "5.0507866*10^(-27)"},
    {7, "Parsec", "3.0856776*10^(16)"},
    {8, "phi - golden mean", "1.61803398874989"},
    {9, "Planck constant", "6.626075*10^(-34)"},
    {10, "Proton charge", "1.6021*10^(-19)"},
    {11, "Proton gyromagnetic ratio", "267522128"},
    {12, "Proton magnetic moment", "1.41060761*10^(-26)"},
    {13, "Proton mass", "1.672623*10^(-27)"},
    {14, "Quantum hole resistance", "25812.8056"},
    {15, "Quantum of circulation", "0.000363694807"},
    {16, "Rest mass of alpha particle", "6.6447*10^(-27)"},
    {17, "Rest mass of deuteron", "3.3435*10^(-27)"},
    {18, "Rest mass of electron", "9.109534*10^(-31)"},
    {19, "Rest mass of hydrogen atom", "1.67343*10^(-27)"},
    {20, "Rest mass of of neutron", "1.6749543*10^(-27)"},
    {21, "Rest mass of proton", "1.6726485*10^(-27)"},
    {22, "Rydberg constant", "10973730"},
    // The same text as the proton's rest mass, as the menu has always had it.
    {23, "Specific charge of apha particle", "1.6726485*10^(-27)"},
    {24, "Specific charge of electron", "175880470000"},
    {25, "Specific charge of proton", "95794000"},
    {26, "Speed of light in vacuum (m/s)", "299792500"},
    {27, "Stefan-Boltzmann constant", "0.000000056697"},
}};

constexpr std::array<std::string_view, 4> kConvert{"&Decimal", "&Binary", "&Hexadecimal", "&Octadecimal"};

}  // namespace

std::span<const ConstantEntry> ConstantsAToJ() { return kAToJ; }
std::span<const ConstantEntry> ConstantsMToS() { return kMToS; }
std::span<const std::string_view> ConvertEntries() { return kConvert; }

}  // namespace velmora::graph
