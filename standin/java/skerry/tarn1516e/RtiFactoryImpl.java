// Stands for the core classes: the library looks it up to see that the jar is on the class path.
package skerry.tarn1516e;

public final class RtiFactoryImpl {
   private RtiFactoryImpl() {}
}
