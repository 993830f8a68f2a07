// velmora-cli geo, convert and base, run as a user runs them.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/cli/clirun.h"

namespace velmora::testing {
namespace {

struct CliCase {
  std::vector<std::string> words;
  int status;
  std::string out;
  std::string why;
};

class CliTest : public ::testing::TestWithParam<CliCase> {};

TEST_P(CliTest, PrintsTheRecord) {
  const auto& c = GetParam();
  const CliRun o = RunCli(c.words);
  EXPECT_EQ(o.status, c.status) << c.why;
  EXPECT_EQ(o.out, c.out) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Geo, CliTest,
    ::testing::Values(
        // 3-4-5: angles atan(3/4), atan(4/3), pi/2; S = 6, R = 2.5, r = 1.
        CliCase{
            {"geo", "triangle", "mnuabc", "3", "4", "5"},
            0,
            "txtta=3\ntxttb=4\ntxttc=5\ntxtta1=0.6435\ntxttb1=0.9273\ntxttc1=1.5708\ntxtts=6\ntxttarea=6\n"
            "txttobim=12\ntxttha=4\ntxtthb=3\ntxtthc=2.4\ntxttRv=2.5\ntxtRm=1\n"
            "result=Triangle: a = 3 b = 4 c = 5\nresult=A = 0.6435 rad (36.86983 deg)\n"
            "result=B = 0.9273 rad (53.13038 deg)\nresult=C = 1.5708 rad (90.00021 deg)\n"
            "result=Perimeter: 12   Area: 6\n",
            "three sides"},
        // R = 3, H = 4: a = 5, B = 9 pi, S = 15 pi, V = 12 pi.
        CliCase{{"geo", "cone", "mnuK1", "3", "4"},
                0,
                "txtCR=3\ntxtCH=4\ntxtCa=5\ntxtCb=28.27433\ntxtCFi=0.6435\ntxtCS=47.12389\ntxtCV=37.69911\n"
                "result=Cone: R = 3 H = 4 a = 5\nresult=B = 28.27433 ø = 0.6435\nresult=S = 47.12389 V = "
                "37.69911\n",
                "cone from R and H"},
        CliCase{
            {"geo", "polygon", "a", "4", "1"},
            0,
            "txtPN=4\ntxtPA=1\ntxtPR=0.70711\ntxtPH=0.5\ntxtPArea=1\ntxtPobim=4\ntxtPFi=90\ntxtPalfa=90\n"
            "txtpSuma=360\ntxtPNd=2\ntxtPodnos=2.82843\n"
            "result=Polygon: N = 4 ; a = 1 ; R = 0.70711 ; H = 0.5\nresult=S = 1 ; P = 4\nfigure: SQUARE\n",
            "unit square"},
        // N = 17, R = 1: a = 2 sin(pi/17) = 0.3675, H = cos(pi/17), angles to 2 decimals.
        CliCase{
            {"geo", "polygon", "R", "17", "1"},
            0,
            "txtPN=17\ntxtPA=0.3675\ntxtPR=1\ntxtPH=0.98297\ntxtPArea=3.07055\ntxtPobim=6.24748\n"
            "txtPFi=21.18\ntxtPalfa=158.82\ntxtpSuma=2700\ntxtPNd=119\ntxtPodnos=3.12374\n"
            "result=Polygon: N = 17 ; a = 0.3675 ; R = 1 ; H = 0.98297\nresult=S = 3.07055 ; P = 6.24748\n"
            "note: For N > 16 preview not available.\n",
            "no name and the preview note past 16 sides"},
        // The question goes to standard output; without --yes it is answered No.
        CliCase{
            {"geo", "triangle", "mnuabc4", "5", "6", "0.5"},
            0,
            "question: Try to find another solution?\n"
            "txtta=5\ntxttb=6\ntxttc=9.35517\ntxtta1=0.5\ntxttb1=0.61298\ntxttc1=2.02861\ntxtts=10.17759\n"
            "txttarea=13.45532\ntxttobim=20.35517\ntxttha=5.38213\ntxtthb=4.48511\ntxtthc=2.87655\n"
            "txttRv=5.21457\ntxtRm=1.32205\n"
            "result=Triangle: a = 5 b = 6 c = 9.35517\nresult=A = 0.5 rad (28.64789 deg)\n"
            "result=B = 0.61298 rad (35.12139 deg)\nresult=C = 2.02861 rad (116.23072 deg)\n"
            "result=Perimeter: 20.35517   Area: 13.45532\n",
            "ambiguous case answered No by default"},
        CliCase{{"geo", "triangle", "mnuabc4", "5", "6", "0.5", "--yes"},
                0,
                "question: Try to find another solution?\n"
                "txtta=5\ntxttb=6\ntxttc=1.17582\ntxtta1=0.5\ntxttb1=2.52861\ntxttc1=0.11298\ntxtts=6.08791\n"
                "txttarea=1.69115\ntxttobim=12.17582\ntxttha=0.67646\ntxtthb=0.56372\ntxtthc=2.87655\n"
                "txttRv=5.21457\ntxtRm=0.27779\n"
                "result=Triangle: a = 5 b = 6 c = 1.17582\nresult=A = 0.5 rad (28.64789 deg)\n"
                "result=B = 2.52861 rad (144.87861 deg)\nresult=C = 0.11298 rad (6.4735 deg)\n"
                "result=Perimeter: 12.17582   Area: 1.69115\n",
                "--yes gives the second solution"},
        CliCase{{"geo", "triangle", "--yes", "mnuabc4", "6", "5", "0.5"},
                0,
                "question: Try to find another solution?\nmessage: 2nd solution not found.\n"
                "txtta=6\ntxttb=5\ntxttc=9.88826\ntxtta1=0.5\ntxttb1=0.41099\ntxttc1=2.2306\ntxtts=10.44413\n"
                "txttarea=11.85171\ntxttobim=20.88826\ntxttha=3.95057\ntxtthb=4.74068\ntxtthc=2.39713\n"
                "txttRv=6.25749\ntxtRm=1.13477\n"
                "result=Triangle: a = 6 b = 5 c = 9.88826\nresult=A = 0.5 rad (28.64789 deg)\n"
                "result=B = 0.41099 rad (23.54825 deg)\nresult=C = 2.2306 rad (127.80386 deg)\n"
                "result=Perimeter: 20.88826   Area: 11.85171\n",
                "--yes anywhere; no second solution"},
        CliCase{{"geo", "circle", "mnukrug1", "0"},
                0,
                "message: Invalid input: R > 0 required.\n"
                "txtKR=0\ntxtKD=\ntxtKArea=\ntxtKobim=\ntxtKFi=\ntxtKrmalo=\ntxtKRR=\nresult=\n",
                "a refusal prints the message and the untouched boxes"},
        CliCase{
            {"geo", "euclid", "mn", "1", "4"},
            0,
            "txtecm=1\ntxtecn=4\ntxteca=5\ntxtecb=2.23607\ntxtecc=4.47214\ntxtech=2\ntxtP1=5\ntxtO1=11.7082\n"
            "result=Euclid's Theorem: m = 1 ; n = 4\nresult=a = 5 ; b = 2.23607 ; c = 4.47214 ; h = 2\n"
            "result=S = 5 ; P = 11.7082\n",
            "Euclid"},
        CliCase{{"geo", "ellipse", "mnuelipsaf1", "1", "1"},
                0,
                "txtRe1=1\ntxtRe2=1\ntxtELaREA=3.14159\ntxtEvolume=6.28319\n"
                "result=Elipse: R1 = 1 ; R2 = 1 ; P = 6.28319\nresult=S = 3.14159\nfigure: R1 = R2\n",
                "ellipse with equal radii"},
        CliCase{{"geo", "ellipsoid", "mnuElipsoidVolume", "1", "2", "3"},
                0,
                "txtRe1=1\ntxtRe2=2\ntxtRe3=3\ntxtEvolume=25.13274\ntxtELaREA=\n"
                "result=Ellipsoid: R1 = 1 ; R2 = 2 ; R3 = 3\nresult=V = 25.13274\n",
                "ellipsoid volume in the ellipsoid's box order"},
        CliCase{{"geo", "sfrustrum", "mnufrsphere2", "12.5663706143592", "2"},
                0,
                "txtFR=2\ntxtFH=1\ntxtFA=\ntxtFQ=\ntxtFArea=12.56637\n"
                "result=Sphere Frustrum: R = 2 ; H = 1\nresult=Area: S = 12.56637\n",
                "spherical zone from S and R"},
        CliCase{{"geo", "cfrustrum", "mnufrcone5", "4", "1.5", "2"},
                0,
                "txtFR=3\ntxtFH=4\ntxtFA=2\ntxtFQ=1.5\ntxtFArea=35.34292\n"
                "result=Cone Frustrum: R = 3 ; H = 4\nresult=q = 1.5 ; a = 2\nresult=S = 35.34292\n",
                "cone frustrum from H, q, a"},
        CliCase{{"geo", "sphere", "mnulopta4", "113.097335529233"},
                0,
                "txtSR=3\ntxtSD=6\ntxtSArea=113.09734\ntxtSzap=113.09734\ntxtSK1=1\ntxtSK2=1\n"
                "result=Sphere: R = 3 ; D = 6\nresult=Volume: V = 113.09734\nresult=Area: S = 113.09734\n",
                "sphere from its volume"},
        CliCase{{"geo", "ring", "mnuprsten1", "3", "1"},
                0,
                "txtKR=3\ntxtKD=6\ntxtKArea=12.56637\ntxtKobim=25.13274\ntxtKFi=\ntxtKrmalo=1\ntxtKRR=4\n"
                "result=Ring: R = 3; r = 1\nresult=C = 25.13274\nresult=S = 12.56637\n",
                "ring"},
        CliCase{{"geo", "arc", "mnuluk2", "10", "1"},
                0,
                "message: Invalid input. Check values for S, L.\n"
                "txtKR=1\ntxtKD=\ntxtKArea=10\ntxtKobim=\ntxtKFi=\ntxtKrmalo=\ntxtKRR=\nresult=\n",
                "arc angle above 2*pi"},
        CliCase{{"geo", "cone", "mnuK8", "1", "2"}, 2, "", "unknown case"},
        CliCase{{"geo", "torus", "a", "1"}, 2, "", "unknown figure"},
        CliCase{{"geo", "cone", "mnuK1", "3"}, 2, "", "too few values"},
        CliCase{{"geo"}, 2, "", "no figure"}));

INSTANTIATE_TEST_SUITE_P(
    Convert, CliTest,
    ::testing::Values(
        CliCase{{"convert", "lengths", "in", "m", "1"},
                0,
                "Text5=1\nText6=0.025400076606631\n",
                "inch to meters"},
        CliCase{
            {"convert", "lengths", "mile", "ft", "1"}, 0, "Text5=1\nText6=5279.98407552\n", "mile to feet"},
        CliCase{{"convert", "areas", "acre", "m2", "2"}, 0, "Text3=2\nText4=8093.65\n", "acres"},
        CliCase{{"convert", "angles", "1", "4", "180"},
                0,
                "Text1=180\nText2=3.14159265358979\n",
                "list positions: degrees to radians"},
        CliCase{{"convert", "lengths", "m", "ft", "-1"},
                0,
                "message: Invalid input.\nText5=-1\nText6=3.28083\n",
                "negative value keeps the last output"},
        CliCase{{"convert", "degrees", "180", "0", "0"},
                0,
                "txtDeg=180\ntxtMin=0\ntxtSec=0\ntxtRad=3.14159\ntxtGrad=200\n",
                "degrees page"},
        CliCase{
            {"convert", "degrees", "1", "-5", "0"},
            0,
            "message: Invalid input for Minutes (Min > 0).\ntxtDeg=1\ntxtMin=\ntxtSec=0\ntxtRad=\ntxtGrad=\n",
            "negative minutes"},
        CliCase{{"convert", "lengths", "m", "furlong", "1"}, 2, "", "unknown unit"},
        CliCase{{"convert", "volumes", "l", "m3", "1"}, 2, "", "unknown page"}));

INSTANTIATE_TEST_SUITE_P(
    Base, CliTest,
    ::testing::Values(
        CliCase{{"base", "1", "6"}, 0, "result=11\nmode=bin\n", "6 in binary, digits unreversed"},
        CliCase{{"base", "1", "32767"}, 0, "result=111111111111111\nmode=bin\n", "the binary bound"},
        CliCase{{"base", "1", "32768"},
                0,
                "message: To convert to binary, the result value must be <= 32767.\n",
                "beyond the bound"},
        CliCase{{"base", "2", "255"}, 0, "result=FF\nmode=hex\n", "hexadecimal"},
        CliCase{{"base", "3", "8"}, 0, "result=10\nmode=oct\n", "octal"},
        CliCase{{"base", "0", "1.50"}, 0, "result=1.50\nmode=dec\n", "decimal as it is"},
        CliCase{{"base", "5", "1"}, 2, "", "no such base"}));

}  // namespace
}  // namespace velmora::testing
