// The way through a std::map, which for small values costs as much as what is done with them.
#ifndef gen_MapWalk_h
#define gen_MapWalk_h

#include <map>

namespace tarn1516e {

// Goes to the next entry. GNU's own step is a call of a function in another library; the same
// step is made here where the compiler sees it.
template <class Place>
inline void step(Place& place)
{
#ifdef __GLIBCXX__
   auto node = place._M_node;
   if (node->_M_right != nullptr) {
      node = node->_M_right;
      while (node->_M_left != nullptr) {
         node = node->_M_left;
      }
   } else {
      auto parent = node->_M_parent;
      while (node == parent->_M_right) {
         node = parent;
         parent = parent->_M_parent;
      }
      if (node->_M_right != parent) { // else it was the root, without anything on its right
         node = parent;
      }
   }
   place._M_node = node;
#else
   ++place;
#endif
}

} // namespace tarn1516e

#endif
