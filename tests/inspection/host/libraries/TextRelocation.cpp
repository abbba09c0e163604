// Has an address in its code that is known only when the library is loaded.

asm(".text\n.globl addressInCode\n.balign 8\naddressInCode: .quad addressInCode\n");
