// The archive record of a floating label.
#include "interact/FloatingLabel.h"

void CFloatingLabel::Serialize(CArchive& ar)
{
    // Placeholder: the label's fields are stored and loaded here, with the
    // rest of the graph's archive.
    CObject::Serialize(ar);
}
