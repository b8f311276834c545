@0xb1c7d0f3a86e2d45;

using Cxx = import "/capnp/c++.capnp";
$Cxx.namespace("bench::cp");

struct Attr {
  type @0 :UInt16;
  union {
    number @1 :UInt32;
    text @2 :Text;
    address @3 :UInt32;  # as its bytes lie
    octets @4 :Data;
    group @5 :List(Attr);
  }
}

struct AttrList {
  attrs @0 :List(Attr);
}
