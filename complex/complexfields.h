#pragma once

#include <string>

namespace velmora::complex {

// The texts of the Complex Calculator's labels and fields, by the names of
// the controls that show them. The calculator's logic reads and writes only
// these; the window binds each member to its control.
struct ComplexFields {
  // The operands as text ("3+j-4") and their part fields: a, b of Complex 1
  // and c, d of Complex 2. A calculation reads the parts through Val.
  std::string lblZ1 = "0+i0";  // Complex 1 as one text
  std::string lblZ2 = "0+i0";  // Complex 2 as one text
  std::string lbla = "0";      // real part of Complex 1
  std::string lblb = "0";      // imaginary part of Complex 1
  std::string lblc = "0";      // real part of Complex 2
  std::string lbld = "0";      // imaginary part of Complex 2

  // The result: its two parts, the result as one line, the operation word.
  std::string TextResultReal = "0";
  std::string TextResultImaginary = "0";
  std::string LabelRezultat = "0.";
  std::string lblSta;  // the operation word ("sta" asks "what")

  // The function list, its rule text, the caption of CALCULATE ! and the
  // fields of Complex 2 that single-operand entries hide.
  std::string ComboFunction;
  std::string LabelRule;
  std::string CommandCalculate = "CALCULATE !";
  bool lblcVisible = true;  // the real part of Complex 2 is shown
  bool lbldVisible = true;  // the imaginary part of Complex 2 is shown
  bool Label2cVisible = true;

  // The memory: empty texts mean no memory. Label4 is the memory's marker.
  std::string txtmemoryReal;      // real part of the memory
  std::string txtmemoryImaginar;  // imaginary part of the memory
  std::string lblMemory1;         // the memory as one text
  bool Label4Visible = false;
  // The entry state of the simple real-number readout.
  std::string LastInput;

  // The text view frm2text, which collects a block per operation when open.
  bool frm2textOpen = false;  // the text view is open
  std::string frm2text;       // the text view's blocks so far
};

}  // namespace velmora::complex
