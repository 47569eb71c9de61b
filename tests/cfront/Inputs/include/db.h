int helper(int x);
