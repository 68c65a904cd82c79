// The order in which the painter takes the quads of the element in the tables: nearest corner first.
#pragma once

namespace tessaly {

// Measures the quads of slots 1..7000 and sorts them into quadorder. A quad with a key of 1000000 or more is never
// chosen: the position then keeps what it held. Ties go to the lower slot. Only slots that were written are looked at.
// reads: quads, perpx.., ptx..; writes: quaddist (used up: 2000000 for what was taken), quadcornerdist1..4, quadorder;
// fails: subscript, type mismatch.
void orderquads();

// Whether a slot of the quad tables holds no quad.
bool emptyquad(int slot);

}  // namespace tessaly
